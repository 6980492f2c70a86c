#include "CaretTravel.h"

#include "TextLines.h"

namespace
{

/// Returns the next passage with text, or the next empty checklist, which has a control to add an entry.
const Passage *nextStop(const Passages &passages, const TextAddress &from, bool forward)
{
    const Passage *next = passages.neighbour(from, forward);
    while (next && !next->text && next->type != BlockType::sticky)
        next = passages.neighbour(next->id, forward);
    return next;
}

} // namespace

qreal CaretTravel::inField(const TextAddress &address, qreal x)
{
    return x - m_page.originOf(address).x();
}

std::optional<PagePosition> CaretTravel::destination(const PagePosition &from, const CaretKey &key)
{
    const Passages &passages = m_page.passages();
    const qsizetype index = passages.indexOf(from.passage);
    if (index < 0)
        return std::nullopt;
    if (key.move == CaretMove::start || key.move == CaretMove::end)
        return pageEnd(key.move == CaretMove::end, !key.extends);
    const Passage passage = passages.at(index);
    const qreal x = isVertical(key.move) ? columnOf(from) : 0;
    const auto to = step(passage, from.offset, key, x);
    if (to && isVertical(key.move))
        m_column = Column{.at = *to, .x = x};
    return to;
}

std::optional<PagePosition> CaretTravel::step(const Passage &passage, int offset, const CaretKey &key,
                                              qreal x)
{
    const QTextDocument *text = m_page.textOf(passage.id);
    if (!text)
        return over(passage, offset, key, x);
    if (key.move == CaretMove::pageUp || key.move == CaretMove::pageDown)
        return pageAway({.passage = passage.id, .offset = offset}, *text, key, x);
    const auto to = isVertical(key.move) ? TextLines::nextLine(*text, offset, key.move == CaretMove::down,
                                                               inField(passage.id, x))
                                         : TextLines::aside(*text, offset, key.move);
    if (to)
        return PagePosition{.passage = passage.id, .offset = *to};
    return beyond(passage, isForward(key.move, TextLines::readsFromRight(*text, offset)), key, x);
}

std::optional<PagePosition> CaretTravel::over(const Passage &passage, int offset, const CaretKey &key,
                                              qreal x)
{
    const bool forward = isForward(key.move, false);
    const PagePosition farSide{.passage = passage.id, .offset = forward ? passage.length() : 0};
    return key.extends && offset != farSide.offset ? farSide : beyond(passage, forward, key, x);
}

std::optional<PagePosition> CaretTravel::beyond(const Passage &passage, bool forward, const CaretKey &key,
                                                qreal x)
{
    const Passages &passages = m_page.passages();
    const Passage *found =
        key.extends ? passages.neighbour(passage.id, forward) : nextStop(passages, passage.id, forward);
    if (!found)
        return isVertical(key.move) ? std::optional(PagePosition{.passage = passage.id,
                                                                 .offset = forward ? passage.length() : 0})
                                    : std::nullopt;
    const Passage next = *found;
    const QTextDocument *text = m_page.textOf(next.id);
    if (text && isVertical(key.move)) {
        const int offset = TextLines::endLine(*text, !forward, inField(next.id, x));
        return PagePosition{.passage = next.id, .offset = offset};
    }
    // A block without text is passed as a whole.
    return PagePosition{.passage = next.id, .offset = forward == (next.text.has_value()) ? 0 : next.length()};
}

std::optional<PagePosition> CaretTravel::pageAway(const PagePosition &from, const QTextDocument &text,
                                                  const CaretKey &key, qreal x)
{
    const qreal way = key.move == CaretMove::pageDown ? m_page.pageStep() : -m_page.pageStep();
    const qreal y = m_page.originOf(from.passage).y() + TextLines::middleOf(text, from.offset);
    const qreal scrolled = m_page.scrollBy(way);
    return m_page.nearest({x, y + way - scrolled}, !key.extends);
}

std::optional<PagePosition> CaretTravel::pageEnd(bool forward, bool onlyInText) const
{
    const Passages &passages = m_page.passages();
    const auto end = forward ? passages.end() : passages.start();
    if (!end || !onlyInText || passages.at(passages.indexOf(end->passage)).text)
        return end;
    const Passage *text = passages.textNeighbour(end->passage, !forward);
    return text ? std::optional(PagePosition{.passage = text->id, .offset = forward ? text->length() : 0})
                : std::nullopt;
}

qreal CaretTravel::columnOf(const PagePosition &position)
{
    if (m_column && m_column->at == position)
        return m_column->x;
    const QTextDocument *text = m_page.textOf(position.passage);
    return text ? m_page.originOf(position.passage).x() + TextLines::xOf(*text, position.offset) : 0;
}
