#include "Editor/PageChange.h"

#include <algorithm>
#include <numeric>

namespace
{

/// Returns the change of the text if nothing else of the block differs.
std::optional<TextChange> textChange(const Block &before, const Block &after)
{
    Block rewritten = before;
    rewritten.content = after.content;
    if (rewritten != after)
        return std::nullopt;
    return TextChange::between(before.content, after.content);
}

void replaceRows(QList<Block> &page, qsizetype row, qsizetype count, const QList<Block> &blocks)
{
    const qsizetype kept = std::min(count, blocks.size());
    std::ranges::copy(blocks.first(kept), page.begin() + row);
    page.remove(row + kept, count - kept);
    page.insert(row + kept, blocks.size() - kept, {});
    std::ranges::copy(blocks.sliced(kept), page.begin() + row + kept);
}

qsizetype textSize(const Block &block)
{
    qsizetype units = block.content.size() + block.bannerTitle.value_or(QString()).size();
    for (const TodoItem &item : block.todos.value_or(QList<TodoItem>{}))
        units += item.text.size() + qsizetype(sizeof(TodoItem) / sizeof(QChar));
    return units * qsizetype(sizeof(QChar)) + qsizetype(sizeof(Block));
}

/// Returns the size of the pictures in `blocks` that are not shared with `others`.
qsizetype pictureSize(const QList<Block> &blocks, const QList<Block> &others)
{
    qsizetype size = 0;
    for (const Block &block : blocks) {
        const auto isShared = [&block](const Block &other) {
            return isSamePicture(block.imageData, other.imageData);
        };
        if (block.imageData && std::ranges::none_of(others, isShared))
            size += block.imageData->size();
    }
    return size;
}

} // namespace

PageChange PageChange::between(const QList<Block> &before, const QList<Block> &after)
{
    const auto [oldStart, newStart] = std::ranges::mismatch(before, after);
    auto oldEnd = before.cend();
    auto newEnd = after.cend();
    while (oldEnd != oldStart && newEnd != newStart && *std::prev(oldEnd) == *std::prev(newEnd)) {
        --oldEnd;
        --newEnd;
    }
    PageChange change;
    change.m_row = oldStart - before.cbegin();
    if (oldStart != oldEnd && newStart != newEnd)
        change.m_text = textChange(*oldStart, *newStart);
    change.m_before = QList<Block>(oldStart + change.rewrittenRows(), oldEnd);
    change.m_after = QList<Block>(newStart + change.rewrittenRows(), newEnd);
    return change;
}

PageChange::Size PageChange::size() const
{
    const qsizetype units = m_text ? m_text->removed.size() + m_text->inserted.size() : 0;
    const auto sum = [](qsizetype total, const Block &block) { return total + textSize(block); };
    return {.text = std::accumulate(m_before.begin(), m_before.end(), units * qsizetype(sizeof(QChar)), sum) +
                    std::accumulate(m_after.begin(), m_after.end(), qsizetype(0), sum),
            .pictures = pictureSize(m_before, m_after) + pictureSize(m_after, m_before)};
}

QList<Block> PageChange::applied(QList<Block> page) const
{
    if (m_text)
        page[m_row].content = m_text->applied(page.at(m_row).content);
    replaceRows(page, m_row + rewrittenRows(), m_before.size(), m_after);
    return page;
}

QList<Block> PageChange::reverted(QList<Block> page) const
{
    if (m_text)
        page[m_row].content = m_text->reverted(page.at(m_row).content);
    replaceRows(page, m_row + rewrittenRows(), m_after.size(), m_before);
    return page;
}
