#include "PageFields.h"

#include "BlockPlace.h"
#include "Composition.h"
#include "FieldCaret.h"
#include "TextLines.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

namespace
{

qreal distance(const QRectF &place, qreal y)
{
    return std::max({place.top() - y, y - place.bottom(), 0.0});
}

qreal scrolled(const QQuickItem &view)
{
    return view.property("contentY").toReal();
}

bool isText(const Passages &passages, const TextAddress &id)
{
    const qsizetype index = passages.indexOf(id);
    return index >= 0 && passages.at(index).text.has_value();
}

} // namespace

void PageFields::setEditor(EditorViewModel *editor)
{
    if (m_selection)
        m_selection->disconnect(this);
    m_editor = editor;
    m_selection = editor->selection();
    connect(m_selection, &PageSelection::changed, this, &PageFields::showSelection);
}

void PageFields::add(FieldCaret &field)
{
    m_fields.add(field);
    field.show(m_selection->parts(), m_selection->selection());
}

void PageFields::add(BlockPlace &block)
{
    m_blocks.add(block);
    block.setCovered(m_selection->parts().covers(block.id()));
}

FieldCaret *PageFields::field(const TextAddress &passage)
{
    // Every picture has a field for a banner title, which is hidden unless it is a banner.
    if (!isText(m_selection->passages(), passage))
        return nullptr;
    if (FieldCaret *found = m_fields.find(passage))
        return found;
    const QScopedValueRollback moving(m_isMoving, true); // the view moves its focus to the row
    Q_EMIT rowNeeded(passage);
    return m_fields.find(passage);
}

const QTextDocument *PageFields::textOf(const TextAddress &address)
{
    const FieldCaret *found = field(address);
    return found ? &found->text() : nullptr;
}

QPointF PageFields::originOf(const TextAddress &address)
{
    const FieldCaret *found = m_fields.find(address);
    return found ? found->field().mapToItem(m_view, QPointF()) : QPointF();
}

qreal PageFields::scrollBy(qreal distance)
{
    const qreal before = scrolled(*m_view);
    Q_EMIT scrollRequested(distance);
    return scrolled(*m_view) - before;
}

bool PageFields::isField(const QQuickItem &item) const
{
    return std::ranges::any_of(m_fields.all(),
                               [&](const FieldCaret *field) { return &field->field() == &item; });
}

const BlockPlace *PageFields::blockAround(const QQuickItem &item) const
{
    const QList<BlockPlace *> blocks = m_blocks.all();
    const auto found = std::ranges::find_if(blocks, [&](const BlockPlace *block) {
        return block->row() == &item || block->row()->isAncestorOf(&item);
    });
    return found == blocks.end() ? nullptr : *found;
}

void PageFields::showSelection()
{
    for (FieldCaret *field : m_fields.all())
        field->show(m_selection->parts(), m_selection->selection());
    for (BlockPlace *block : m_blocks.all())
        block->setCovered(m_selection->parts().covers(block->id()));
}

std::optional<PagePosition> PageFields::nearest(QPointF point, bool onlyInText) const
{
    qreal least = std::numeric_limits<qreal>::max();
    std::optional<PagePosition> found;
    const auto consider = [&](const QQuickItem &item, auto position) {
        const QRectF place = item.mapRectToItem(m_view, item.boundingRect());
        if (distance(place, point.y()) >= least)
            return;
        least = distance(place, point.y());
        found = position(point - place.topLeft(), place.size());
    };
    const Passages &passages = m_selection->passages();
    for (const FieldCaret *field : m_fields.all()) {
        const TextAddress passage = field->id();
        if (!isText(passages, passage))
            continue;
        consider(field->field(), [&](QPointF inside, QSizeF) {
            return PagePosition{.passage = passage, .offset = TextLines::nearest(field->text(), inside)};
        });
    }
    for (const BlockPlace *block : m_blocks.all()) {
        const TextAddress passage{.blockID = block->id()};
        if (onlyInText || passages.indexOf(passage) < 0 || isText(passages, passage))
            continue;
        consider(*block->item(), [&](QPointF inside, QSizeF size) {
            return PagePosition{.passage = passage, .offset = inside.y() > size.height() / 2 ? 1 : 0};
        });
    }
    return found;
}

void PageFields::place(const PagePosition &position)
{
    FieldCaret *target = field(position.passage);
    m_selection->clear();
    if (!target)
        return focusBlock(position.passage.blockID);
    target->select(position.offset, position.offset);
    focus(*target);
}

void PageFields::show(const BlockSelection &selection)
{
    if (m_selection->select(selection))
        return;
    const Passages &passages = m_selection->passages();
    const qsizetype head = passages.indexOf(selection.head.passage);
    const qsizetype only =
        head >= 0 && passages.at(head).text ? head : passages.indexOf(selection.anchor.passage);
    if (only < 0)
        return;
    const auto within = [&](const PagePosition &position) {
        const qsizetype index = passages.indexOf(position.passage);
        return index == only ? position.offset : index < only ? 0 : passages.at(only).length();
    };
    if (FieldCaret *target = field(passages.at(only).id))
        target->select(within(selection.anchor), within(selection.head));
}

void PageFields::select(const BlockSelection &selection)
{
    show(selection);
    m_selection->offer();
    const TextAddress &head = selection.head.passage;
    if (FieldCaret *target = field(head))
        focus(*target);
    else if (const BlockPlace *block = m_blocks.find(head.blockID))
        Q_EMIT showRequested(block->item());
}

bool PageFields::extendTo(QPointF point)
{
    settle();
    auto head = nearest(point, false);
    if (!head || !m_current)
        return false;
    const auto &selected = m_selection->selection();
    const PagePosition anchor = selected ? selected->anchor : m_current->selection().anchor;
    const Passages &passages = m_selection->passages();
    const qsizetype index = passages.indexOf(head->passage);
    if (!passages.at(index).text)
        head->offset = index > passages.indexOf(anchor.passage) ? 1 : 0;
    select({.anchor = anchor, .head = *head});
    return true;
}

void PageFields::settle() const
{
    if (FieldCaret *field = current())
        Composition::settle(&field->field());
}

void PageFields::giveUp()
{
    m_selection->clear();
    if (FieldCaret *field = current())
        field->deselect();
}

void PageFields::focus(FieldCaret &field)
{
    const QScopedValueRollback moving(m_isMoving, true);
    field.takeFocus();
}

void PageFields::focusBlock(const QUuid &blockID)
{
    if (const BlockPlace *block = m_blocks.find(blockID))
        block->takeFocus();
}

FieldCaret *PageFields::current() const
{
    return m_current && m_current->isOnPage() ? m_current : nullptr;
}

void PageFields::entered(FieldCaret &field)
{
    // After a menu or another window, the focus returns to the field.
    if (!m_isMoving && m_current != &field)
        m_selection->clear();
    // A page has only one selection.
    FieldCaret *last = current();
    if (last && last != &field && !m_selection->isCrossing())
        last->deselect();
    m_current = &field;
}
