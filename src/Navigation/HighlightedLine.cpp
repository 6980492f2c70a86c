#include "Navigation/HighlightedLine.h"

#include "Navigation/FoldedText.h"
#include "Navigation/SearchWords.h"

#include <algorithm>

namespace
{
constexpr qsizetype roomBefore = 28;
constexpr qsizetype roomAfter = 60;

/// Returns the first position from `from` to `end` that follows white space; otherwise the next start of a
/// letter.
qsizetype beginningOfWord(QStringView text, qsizetype from, qsizetype end)
{
    if (from == 0 || text.at(from - 1).isSpace())
        return from;
    for (qsizetype place = from; place < end; ++place) {
        if (text.at(place).isSpace())
            return place + 1;
    }
    while (from < end && (text.at(from).isLowSurrogate() || text.at(from).isMark()))
        ++from;
    return from;
}

/// Returns the last position from `start` to `from` that precedes white space; otherwise the start of the
/// letter at `from`.
qsizetype endOfWord(QStringView text, qsizetype from, qsizetype start)
{
    if (from == text.size() || text.at(from).isSpace())
        return from;
    for (qsizetype place = from; place > start; --place) {
        if (text.at(place - 1).isSpace())
            return place - 1;
    }
    while (from > start && (text.at(from).isLowSurrogate() || text.at(from).isMark()))
        --from;
    return from;
}

/// Returns the range of whole letters, also if only the first half of an "ß" was found.
HighlightRange mark(const QList<qsizetype> &origins, qsizetype place, qsizetype length)
{
    const auto last = origins.begin() + place + length - 1;
    const qsizetype start = origins.at(place);
    return {start, *std::upper_bound(last, origins.end(), *last) - start};
}

QList<HighlightRange> places(const SearchWord &word, QStringView folded, const QList<qsizetype> &origins)
{
    const Fit least = std::min(word.best(folded).fit, Fit::beginning);
    QList<HighlightRange> marks;
    for (WordMatch found = word.next(folded, 0); found.fit != Fit::none;
         found = word.next(folded, found.place + word.length())) {
        if (found.fit >= least)
            marks.append(mark(origins, found.place, word.length()));
    }
    return marks;
}

/// Merges ranges that touch or overlap.
QList<HighlightRange> united(QList<HighlightRange> marks)
{
    std::ranges::sort(marks, {}, &HighlightRange::start);
    QList<HighlightRange> apart;
    for (const HighlightRange &mark : std::as_const(marks)) {
        if (apart.isEmpty() || apart.last().start + apart.last().length < mark.start) {
            apart.append(mark);
            continue;
        }
        HighlightRange &last = apart.last();
        last.length = std::max(last.length, mark.start + mark.length - last.start);
    }
    return apart;
}

} // namespace

QList<HighlightRange> highlightRanges(QStringView text, const SearchWords &words)
{
    const QString folded = FoldedText::folded(text);
    const QList<qsizetype> origins = FoldedText::origins(text);
    QList<HighlightRange> marks;
    for (const SearchWord &word : words.all())
        marks += places(word, folded, origins);
    return united(marks);
}

HighlightedLine lineAround(QStringView text, qsizetype place, const SearchWords &words)
{
    const qsizetype start = place <= roomBefore ? 0 : beginningOfWord(text, place - roomBefore, place);
    const qsizetype most = place + roomAfter;
    const qsizetype end = most >= text.size() ? text.size() : endOfWord(text, most, place);
    HighlightedLine line;
    line.text = text.mid(start, end - start).toString().simplified();
    if (!text.left(start).trimmed().isEmpty())
        line.text.prepend(u'…');
    if (!text.mid(end).trimmed().isEmpty())
        line.text.append(u'…');
    line.marks = highlightRanges(line.text, words);
    return line;
}
