#include "Editor/EditHistory.h"

#include "Editor/BlockOperations.h"

#include <algorithm>

namespace
{

QString textAt(const PelkoDocument &page, const FocusTarget &place)
{
    const qsizetype row = BlockOperations::indexOf(page, place.address.blockID);
    if (row < 0)
        return {};
    const Block &block = page.blocks.at(row);
    if (!place.address.partID)
        return block.type == BlockType::image ? block.bannerTitle.value_or(QString()) : block.content;
    const QList<TodoItem> todos = block.todos.value_or(QList<TodoItem>{});
    const auto entry = std::ranges::find(todos, *place.address.partID, &TodoItem::id);
    return entry == todos.end() ? QString() : entry->text;
}

/// Returns the page after undo or redo, with the focus or the block to scroll to.
Edit shown(PelkoDocument page, const std::optional<FocusTarget> &place, qsizetype row, qsizetype rows)
{
    Edit edit{.document = std::move(page)};
    const QList<Block> &blocks = edit.document.blocks;
    if (blocks.isEmpty())
        return edit;
    const QUuid changed = blocks.at(std::min(row, blocks.size() - 1)).id;
    const qsizetype placeRow = place ? BlockOperations::indexOf(edit.document, place->address.blockID) : -1;
    edit.focus = placeRow < 0 ? FocusTarget{.address = {.blockID = changed}} : place;
    if (placeRow >= 0 && rows > 0 && (placeRow < row || placeRow >= row + rows))
        edit.scrollTo = changed;
    return edit;
}

} // namespace

void EditHistory::record(const PelkoDocument &before, const PelkoDocument &after, const Places &places)
{
    follow(before.blocks);
    const Step step{.change = PageChange::between(before.blocks, after.blocks), .places = places};
    if (step.change.isEmpty())
        return;
    push(step);
    m_present = after.blocks;
}

void EditHistory::recordTyping(const PelkoDocument &before, const PelkoDocument &after, const Places &places)
{
    Q_ASSERT(places.after);
    follow(before.blocks);
    const FocusTarget &field = *places.after;
    const TypingRun key(field, TextChange::between(textAt(before, field), textAt(after, field), field.caret));
    if (m_run && m_run->isContinuedBy(key)) {
        Step step = m_past.takeLast();
        weigh(step, -1);
        step.change = PageChange::between(step.change.reverted(before.blocks), after.blocks);
        step.places.after = places.after;
        push(step);
        m_present = after.blocks;
    } else {
        record(before, after, places);
    }
    m_run = key;
}

std::optional<Edit> EditHistory::undo(PelkoDocument page)
{
    follow(page.blocks);
    endRun();
    if (m_past.isEmpty())
        return std::nullopt;
    const Step step = m_past.takeLast();
    weigh(step, -1);
    page.blocks = step.change.reverted(page.blocks);
    m_present = page.blocks;
    m_future.append(step);
    return shown(std::move(page), step.places.before, step.change.row(), step.change.rowsBefore());
}

std::optional<Edit> EditHistory::redo(PelkoDocument page)
{
    follow(page.blocks);
    endRun();
    if (m_future.isEmpty())
        return std::nullopt;
    const Step step = m_future.takeLast();
    page.blocks = step.change.applied(page.blocks);
    m_present = page.blocks;
    m_past.append(step);
    weigh(step, 1);
    return shown(std::move(page), step.places.after, step.change.row(), step.change.rowsAfter());
}

void EditHistory::follow(const QList<Block> &blocks, const Places &places)
{
    if (m_present && *m_present != blocks)
        push({.change = PageChange::between(*m_present, blocks), .places = places});
    m_present = blocks;
}

void EditHistory::push(const Step &step)
{
    endRun();
    m_future.clear();
    m_past.append(step);
    weigh(step, 1);
    trim();
}

void EditHistory::weigh(const Step &step, qsizetype sign)
{
    const PageChange::Size size = step.change.size();
    m_pastSize.text += sign * (size.text + qsizetype(sizeof(Step)));
    m_pastSize.pictures += sign * size.pictures;
}

void EditHistory::trim()
{
    while (m_past.size() > 1 && (m_past.size() > m_limits.steps || m_pastSize.text > m_limits.textBytes ||
                                 m_pastSize.pictures > m_limits.pictureBytes))
        weigh(m_past.takeFirst(), -1);
}
