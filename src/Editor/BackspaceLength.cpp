#include "Editor/BackspaceLength.h"

#include <QList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <ranges>

namespace
{

/// Returns a start of a cluster near the end: searching a long text from its start is too slow for a key. An
/// ASCII character always begins a cluster.
qsizetype nearClusterStart(QStringView text)
{
    qsizetype start = text.size() - 1;
    while (start > 0 && text.at(start).unicode() >= 0x80)
        --start;
    return start;
}

bool isRegionalIndicator(char32_t codePoint)
{
    return codePoint >= 0x1F1E6 && codePoint <= 0x1F1FF;
}

/// Returns the number of regional indicators at the end of the text. Two make a flag; Qt pairs them wrongly
/// behind an emoji.
qsizetype regionalIndicatorsAtEnd(QStringView text)
{
    const QList<uint> codePoints = text.toUcs4();
    const auto backwards = std::views::reverse(codePoints);
    return std::ranges::distance(backwards | std::views::take_while(isRegionalIndicator));
}

/// Returns whether the character is a pictograph, a regional indicator, or the variation selector or keycap
/// that turns another character into an emoji.
bool belongsToEmoji(char32_t codePoint)
{
    return (codePoint >= 0x1F000 && codePoint <= 0x1FAFF) || codePoint == 0xFE0F || codePoint == 0x20E3;
}

bool isEmoji(QStringView cluster)
{
    return std::ranges::any_of(cluster.toUcs4(), belongsToEmoji);
}

} // namespace

qsizetype backspaceLength(QStringView before)
{
    if (before.isEmpty())
        return 0;
    const QStringView near = before.sliced(nearClusterStart(before));
    const qsizetype indicators = regionalIndicatorsAtEnd(near);
    if (indicators > 0)
        return indicators % 2 == 0 ? 4 : 2;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, near.data(), near.size());
    finder.toEnd();
    const QStringView cluster = near.sliced(std::max<qsizetype>(finder.toPreviousBoundary(), 0));
    if (isEmoji(cluster))
        return cluster.size();
    const bool isPair = cluster.size() > 1 && cluster.back().isLowSurrogate() &&
                        cluster.at(cluster.size() - 2).isHighSurrogate();
    return isPair ? 2 : 1;
}
