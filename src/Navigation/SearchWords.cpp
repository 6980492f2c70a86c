#include "Navigation/SearchWords.h"

#include "Navigation/FoldedText.h"

using namespace Qt::StringLiterals;

namespace
{
/// Returns whether there is a word boundary between two characters.
bool isEdge(QChar before, QChar after)
{
    return !before.isLetterOrNumber() || !after.isLetterOrNumber();
}
} // namespace

WordMatch SearchWord::next(QStringView folded, qsizetype from) const
{
    // A single letter occurs in most words; restarting the matcher for each would cost more than the search.
    const qsizetype place =
        length() == 1 ? folded.indexOf(m_word.front(), from) : m_matcher.indexIn(folded, from);
    return place < 0 ? WordMatch() : WordMatch{fitAt(folded, place), place};
}

WordMatch SearchWord::best(QStringView folded) const
{
    WordMatch best;
    for (WordMatch found = next(folded, 0); found.fit != Fit::none; found = next(folded, found.place + 1)) {
        if (found.fit > best.fit)
            best = found;
        if (best.fit == Fit::whole)
            break;
    }
    return best;
}

Fit SearchWord::fitAt(QStringView folded, qsizetype place) const
{
    const qsizetype end = place + length();
    const bool begins = place == 0 || isEdge(folded.at(place - 1), folded.at(place));
    const bool ends = end == folded.size() || isEdge(folded.at(end - 1), folded.at(end));
    if (!begins)
        return Fit::within;
    return ends ? Fit::whole : Fit::beginning;
}

SearchWords::SearchWords(QStringView typed)
{
    QStringList words = FoldedText::folded(typed).simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.size() > 1)
        m_phrase.emplace(words.join(u' '));
    words.removeDuplicates();
    for (const QString &word : std::as_const(words))
        m_words.emplace_back(word);
}
