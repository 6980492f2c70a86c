#include "Editor/BlockSelection.h"

#include <algorithm>

namespace
{

struct Place {
    qsizetype index;
    int offset;

    auto operator<=>(const Place &) const = default;
};

Place placeOf(const PagePosition &position, const Passages &passages)
{
    const qsizetype index = passages.indexOf(position.passage);
    const int length = index < 0 ? 0 : passages.at(index).length();
    return {.index = index, .offset = std::clamp(position.offset, 0, length)};
}

} // namespace

std::optional<QString> SelectedPart::text() const
{
    if (!passage.text)
        return std::nullopt;
    return passage.text->sliced(start, end - start);
}

SelectedParts::SelectedParts(const Passages &passages, const BlockSelection &selection)
{
    const auto [from, to] =
        std::minmax({placeOf(selection.anchor, passages), placeOf(selection.head, passages)});
    if (from.index < 0)
        return;
    for (qsizetype index = from.index; index <= to.index; ++index) {
        const Passage &passage = passages.at(index);
        const int start = index == from.index ? from.offset : 0;
        const int end = index == to.index ? to.offset : passage.length();
        if (!passage.text && start == end)
            continue;
        m_index.insert(passage.id, m_parts.size());
        m_parts.append({.passage = passage, .start = start, .end = end});
    }
    cover(passages);
}

void SelectedParts::cover(const Passages &passages)
{
    if (m_parts.isEmpty())
        return;
    const bool isWithinOneBlock = m_parts.first().passage.row == m_parts.last().passage.row;
    for (const SelectedPart &part : m_parts) {
        if (!isTextLike(part.passage.type) && !(part.passage.text && isWithinOneBlock))
            m_covered.insert(part.passage.id.blockID);
    }
    // At the ends of the selection a part of the block may be unselected.
    for (const bool atEnd : {false, true}) {
        const SelectedPart &part = atEnd ? m_parts.last() : m_parts.first();
        const Passage *outside = passages.neighbour(part.passage.id, atEnd);
        if (!part.isWhole() || (outside && outside->row == part.passage.row))
            m_covered.remove(part.passage.id.blockID);
    }
}

bool SelectedParts::isCrossing() const
{
    return m_parts.size() > 1 || (m_parts.size() == 1 && !m_parts.first().passage.text);
}

const SelectedPart *SelectedParts::of(const TextAddress &id) const
{
    const auto found = m_index.constFind(id);
    return found == m_index.cend() ? nullptr : &m_parts.at(*found);
}
