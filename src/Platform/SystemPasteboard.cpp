#include "Platform/SystemPasteboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QMimeDatabase>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{

/// As Qt names an image that has no encoding yet.
constexpr auto decodedImage = "application/x-qt-image"_L1;

/// The clipboard formats offered to other programs. A picture is decoded only if one asks for it in another
/// format.
class ClipboardMimeData : public QMimeData
{
public:
    void setPicture(const QByteArray &file)
    {
        const QString type = QMimeDatabase().mimeTypeForData(file).name();
        if (!type.startsWith("image/"_L1))
            return;
        setData(type, file);
        m_picture = file;
    }

    QStringList formats() const override
    {
        return m_picture.isEmpty() ? QMimeData::formats() : QMimeData::formats() << decodedImage;
    }

protected:
    QVariant retrieveData(const QString &form, QMetaType type) const override
    {
        return form == decodedImage ? QImage::fromData(m_picture) : QMimeData::retrieveData(form, type);
    }

private:
    QByteArray m_picture;
};

std::unique_ptr<QMimeData> formsOf(const PasteboardItem &item)
{
    auto forms = std::make_unique<ClipboardMimeData>();
    if (!item.text.isEmpty())
        forms->setText(item.text);
    if (!item.markdown.isEmpty())
        forms->setData(u"text/markdown"_s, item.markdown.toUtf8());
    if (!item.html.isEmpty())
        forms->setHtml(item.html);
    if (!item.picture.isEmpty())
        forms->setPicture(item.picture);
    return forms;
}

} // namespace

QString SystemPasteboard::text() const
{
    return QGuiApplication::clipboard()->text();
}

QByteArray SystemPasteboard::picture() const
{
    const QMimeData *offered = QGuiApplication::clipboard()->mimeData();
    if (!offered || offered->hasText())
        return {};
    for (const auto type : {"image/png"_L1, "image/jpeg"_L1, "image/webp"_L1, "image/gif"_L1}) {
        if (const QByteArray file = offered->data(type); !file.isEmpty())
            return file;
    }
    QByteArray encoded;
    QBuffer buffer(&encoded);
    offered->imageData().value<QImage>().save(&buffer, "PNG");
    return encoded;
}

void SystemPasteboard::put(const PasteboardItem &item)
{
    auto forms = formsOf(item);
    if (!forms->formats().isEmpty())
        QGuiApplication::clipboard()->setMimeData(forms.release());
}

QString SystemPasteboard::selectedText() const
{
    return QGuiApplication::clipboard()->text(QClipboard::Selection);
}

void SystemPasteboard::putSelectedText(const QString &text)
{
    if (QGuiApplication::clipboard()->supportsSelection())
        QGuiApplication::clipboard()->setText(text, QClipboard::Selection);
}
