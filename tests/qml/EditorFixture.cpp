#include "EditorFixture.h"

#include "Editor/PictureBytes.h"
#include "InputMethodFixture.h"

#include <QBuffer>
#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace
{

/// Returns a PNG of 400 × 200 pixels in the named colour, or the text itself if it is no colour.
QByteArray bytesOf(const QString &picture)
{
    if (!QColor::isValidColorName(picture))
        return picture.toUtf8();
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(QColor(picture));
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

void describePicture(const Block &block, QVariantMap &described)
{
    if (block.imageData)
        described.insert(u"hasPicture"_s, true);
    if (block.isFullWidth)
        described.insert(u"isFullWidth"_s, *block.isFullWidth);
    if (block.bannerTitle)
        described.insert(u"bannerTitle"_s, *block.bannerTitle);
}

Block blockFrom(const QVariantMap &described)
{
    Block block(blockTypeFromRawValue(described[u"type"_s].toString()).value(),
                described[u"content"_s].toString());
    if (described.contains(u"picture"_s))
        block.imageData = bytesOf(described[u"picture"_s].toString());
    if (described.contains(u"isFullWidth"_s))
        block.isFullWidth = described[u"isFullWidth"_s].toBool();
    if (described.contains(u"bannerTitle"_s))
        block.bannerTitle = described[u"bannerTitle"_s].toString();
    if (!described.contains(u"todos"_s))
        return block;
    block.todos.emplace();
    for (const QVariant &todo : described[u"todos"_s].toList())
        block.todos->append(
            {.text = todo.toMap()[u"text"_s].toString(), .done = todo.toMap()[u"done"_s].toBool()});
    return block;
}

QVariantMap describe(const Block &block)
{
    QVariantMap described{{u"type"_s, rawValue(block.type)}, {u"content"_s, block.content}};
    describePicture(block, described);
    if (!block.todos)
        return described;
    QVariantList todos;
    for (const TodoItem &todo : *block.todos)
        todos.append(QVariantMap{{u"text"_s, todo.text}, {u"done"_s, todo.done}});
    described.insert(u"todos"_s, todos);
    return described;
}

} // namespace

EditorFixture::EditorFixture(QObject *parent) : QObject(parent), m_appState(m_scheduler, m_clock, m_file) {}

void EditorFixture::open(const QVariantList &blocks)
{
    for (const PelkoDocument &document : QList(m_appState.documents()))
        m_appState.permanentlyDeleteDocument(document);
    m_appState.createDocument(Space::work);
    replace(blocks);
    m_editor = new EditorViewModel(m_appState, m_desktop.services(m_scheduler),
                                   m_appState.openDocumentID().value(), this);
    Q_EMIT editorChanged();
}

void EditorFixture::replace(const QVariantList &blocks)
{
    PelkoDocument page = m_appState.openDocument().value();
    page.blocks.clear();
    for (const QVariant &described : blocks)
        page.blocks.append(blockFrom(described.toMap()));
    m_appState.updateDocument(page);
}

void EditorFixture::addTask(const QString &text)
{
    PelkoDocument page = m_appState.openDocument().value();
    page.blocks.first().todos->append(TodoItem{.text = text});
    m_appState.updateDocument(page);
}

QVariantList EditorFixture::blocks() const
{
    const PelkoDocument page = *m_appState.document(QUuid(m_editor->documentID()));
    QVariantList described;
    for (const Block &block : page.blocks)
        described.append(describe(block));
    return described;
}

void EditorFixture::openAnother()
{
    m_appState.createDocument(Space::work);
}

void EditorFixture::advance(int milliseconds)
{
    m_scheduler.advance(std::chrono::milliseconds(milliseconds));
}

void EditorFixture::compose(const QString &preedit)
{
    InputMethodFixture().compose(preedit);
}

void EditorFixture::commit(const QString &text, const QString &preedit)
{
    InputMethodFixture().commit(text, preedit);
}

int EditorFixture::cursorOf(QQuickItem *item) const
{
    return item->window()->cursor().shape();
}

bool EditorFixture::dropFromElsewhere(QQuickItem *item, QPointF place, const QString &format,
                                      const QString &text) const
{
    QMimeData data;
    data.setData(format, text.toUtf8());
    QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(item->window(), &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QCoreApplication::sendEvent(item->window(), &drop);
    return enter.isAccepted() || drop.isAccepted();
}

void EditorFixture::choosePicture(const QString &picture)
{
    m_desktop.pictureFiles.files["/picture"] = bytesOf(picture);
    m_desktop.fileChooser.answer(QList<std::filesystem::path>{"/picture"});
}

void EditorFixture::chooseNothing()
{
    m_desktop.fileChooser.answer(QList<std::filesystem::path>{});
}

void EditorFixture::failToChoose(const QString &why)
{
    m_desktop.fileChooser.answer(FileError{why});
}

void EditorFixture::copyPicture(const QString &picture)
{
    m_desktop.pasteboard.png = bytesOf(picture);
}

void EditorFixture::pressTwice(QQuickItem *item, QPointF place) const
{
    const QPointF scene = item->mapToScene(place);
    const QPointF global = item->mapToGlobal(place);
    const auto send = [&](QEvent::Type type, Qt::MouseButtons held) {
        QMouseEvent event(type, scene, scene, global, Qt::LeftButton, held, Qt::NoModifier);
        QCoreApplication::sendEvent(item->window(), &event);
    };
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    send(QEvent::MouseButtonDblClick, Qt::LeftButton);
}

void EditorFixture::releaseMiddleButton(QQuickItem *field, QPointF place) const
{
    QMouseEvent event(QEvent::MouseButtonRelease, place, field->mapToScene(place), field->mapToGlobal(place),
                      Qt::MiddleButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &event);
}

bool EditorFixture::sharesBytes(QObject *picture, int row) const
{
    const auto shown = picture->property("imageData").value<PictureBytes>();
    const QByteArray stored = m_appState.openDocument()->blocks.at(row).imageData.value();
    return shown.bytes.constData() == stored.constData();
}
