#include "writer/ShownPage.h"

#include "Editor/EditorViewModel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

bool isOfType(const QObject &object, const QByteArray &type)
{
    for (const QMetaObject *meta = object.metaObject(); meta; meta = meta->superClass()) {
        const QByteArrayView name = meta->className();
        if (name == type || name.startsWith(type + "_QML"))
            return true;
    }
    return false;
}

QObject *objectOf(const QObject &object, const char *property)
{
    return object.property(property).value<QObject *>();
}

/// Normalises text to what is visible: all line breaks are equal, and so are all blanks and all characters
/// without a glyph.
QString asSeen(QString text)
{
    text.replace("\r\n"_L1, u"\u200b\n"_s);
    for (QChar &c : text) {
        const char16_t unit = c.unicode();
        const bool isReserved = unit == 0 || unit == u'\xFDD0' || unit == u'\xFDD1';
        if ((unit >= u'\n' && unit <= u'\r') || unit == u'\x85' || unit == u'\x2028' || unit == u'\x2029')
            c = u'\n';
        else if (isReserved || unit == QChar::ObjectReplacementCharacter)
            c = QChar::ReplacementCharacter;
        else if (unit == QChar::Nbsp)
            c = u' ';
    }
    return text;
}

QPointF topLeft(const QQuickItem *item)
{
    return item->mapToScene({});
}

void sortByPlace(QList<QQuickItem *> &items)
{
    std::ranges::stable_sort(items, [](const QQuickItem *one, const QQuickItem *other) {
        return topLeft(one).y() < topLeft(other).y();
    });
}

void findAll(QQuickItem &item, const QByteArray &type, QList<QQuickItem *> &found)
{
    if (isOfType(item, type))
        found.append(&item);
    for (QQuickItem *child : item.childItems())
        findAll(*child, type, found);
}

} // namespace

ShownPage::ShownPage(QQuickWindow &window, EditorViewModel &editor, const PelkoDocument &document)
    : m_window(window)
    , m_editor(editor)
    , m_document(document)
{
    collect(*window.contentItem());
    sortByPlace(m_fields);
}

void ShownPage::collect(QQuickItem &item)
{
    if (isOfType(item, "BlockList")) {
        if (objectOf(item, "editor") != &m_editor)
            return;
        QList<QQuickItem *> lists;
        findAll(item, "QQuickListView", lists);
        m_list = lists.value(0);
        findAll(item, "WritingField", m_fields);
        // Only a banner shows its title field.
        m_fields.removeIf([](const QQuickItem *field) { return !field->isVisible(); });
        return;
    }
    for (QQuickItem *child : item.childItems())
        collect(*child);
}

QList<QQuickItem *> ShownPage::controls(const QByteArray &type) const
{
    QList<QQuickItem *> found;
    if (m_list)
        findAll(*m_list, type, found);
    found.removeIf([](const QQuickItem *item) { return !item->isVisible(); });
    sortByPlace(found);
    return found;
}

QList<QQuickItem *> ShownPage::chips() const
{
    QList<QQuickItem *> found;
    if (m_list)
        findAll(*m_list->parentItem()->parentItem(), "IconChipButton", found);
    found.removeIf([](const QQuickItem *chip) { return !chip->isVisible(); });
    return found.first(std::min<qsizetype>(found.size(), 7));
}

Spot ShownPage::spotOf(const TextAddress &address, int offset) const
{
    const auto block = std::ranges::find(m_document.blocks, address.blockID, &Block::id);
    if (block == m_document.blocks.end())
        return {.block = -1};
    Spot spot{.block = int(block - m_document.blocks.begin()), .offset = offset};
    if (!address.partID)
        return spot;
    const QList<TodoItem> todos = block->todos.value_or(QList<TodoItem>());
    const auto todo = std::ranges::find(todos, *address.partID, &TodoItem::id);
    return todo == todos.end()
               ? Spot{.block = -1}
               : Spot{.block = spot.block, .entry = int(todo - todos.begin()), .offset = offset};
}

Spot ShownPage::placeOf(const QQuickItem &field) const
{
    return spotOf(field.property("address").value<TextAddress>(), 0);
}

int ShownPage::blockOf(const QQuickItem *item) const
{
    for (; item; item = item->parentItem()) {
        if (isOfType(*item, "BlockRow"))
            return spotOf({.blockID = QUuid(item->property("blockID").toString())}, 0).block;
    }
    return -1;
}

int ShownPage::entryOf(const QQuickItem *item) const
{
    const int block = blockOf(item);
    for (; item && block >= 0; item = item->parentItem()) {
        if (isOfType(*item, "TodoRow"))
            return spotOf(item->property("address").value<TextAddress>(), 0).entry;
    }
    return -1;
}

bool ShownPage::isOnPage(const QQuickItem *item) const
{
    return item && m_list && (item == m_list->parentItem() || m_list->parentItem()->isAncestorOf(item));
}

QQuickItem *ShownPage::focusedField() const
{
    QQuickItem *item = m_window.activeFocusItem();
    return m_fields.contains(item) ? item : nullptr;
}

QString ShownPage::preedit() const
{
    const QQuickItem *field = focusedField();
    return field ? field->property("preeditText").toString() : QString();
}

std::optional<Marked> ShownPage::markedUnderAlert() const
{
    QQuickItem *item = m_list ? m_list->parentItem() : nullptr;
    while (item && item->isFocusScope() && item->scopedFocusItem())
        item = item->scopedFocusItem();
    return markedFrom(m_fields.contains(item) ? item : nullptr);
}

std::optional<Marked> ShownPage::markedFrom(QQuickItem *field) const
{
    if (const auto crossing = m_editor.selection()->selection()) {
        const auto spot = [this](const PagePosition &position) {
            return spotOf(position.passage, position.offset);
        };
        return Marked{.anchor = spot(crossing->anchor), .head = spot(crossing->head)};
    }
    Spot head = field ? placeOf(*field) : Spot{.block = -1};
    if (head.block < 0)
        return std::nullopt;
    head.offset = field->property("cursorPosition").toInt();
    const int start = field->property("selectionStart").toInt();
    Spot anchor = head;
    anchor.offset = start == head.offset ? field->property("selectionEnd").toInt() : start;
    return Marked{.anchor = anchor, .head = head};
}

const QString *ShownPage::storedText(const Spot &spot) const
{
    static const QString none;
    const Block &block = m_document.blocks.at(spot.block);
    if (spot.entry >= 0)
        return &block.todos->at(spot.entry).text;
    if (block.type == BlockType::image)
        return block.bannerTitle ? &*block.bannerTitle : &none;
    return &block.content;
}

QString ShownPage::difference() const
{
    for (const QQuickItem *field : m_fields) {
        const Spot place = placeOf(*field);
        if (place.block < 0 || !field->property("preeditText").toString().isEmpty())
            continue;
        const QString shown = field->property("text").toString();
        const QString stored = *storedText(place);
        if (asSeen(shown) != asSeen(stored))
            return u"block %1 shows %2, the store has %3"_s.arg(place.block)
                .arg(quoted(shown), quoted(stored));
    }
    return {};
}

QString ShownPage::caretOutOfSight() const
{
    const QQuickItem *field = focusedField();
    if (!field || !m_list || m_editor.selection()->isCrossing())
        return {};
    const QRectF caret = field->mapRectToItem(m_list, field->property("cursorRectangle").toRectF());
    if (caret.top() >= -1 && caret.bottom() <= m_list->height() + 1)
        return {};
    return u"the caret stands from %1 to %2, the view is %3 high"_s.arg(caret.top())
        .arg(caret.bottom())
        .arg(m_list->height());
}
