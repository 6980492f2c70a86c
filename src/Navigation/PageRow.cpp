#include "Navigation/PageRow.h"

#include "Navigation/FoldedText.h"
#include "Navigation/PageTexts.h"

namespace
{

QString textNumber(const PelkoDocument &page, qsizetype number)
{
    QString found;
    visitTexts(page, [&](const QString &text) {
        if (number-- == 0)
            found = text;
        return number >= 0;
    });
    return found;
}

HighlightedLine nameOfHit(const PelkoDocument &page, const SearchWords &words)
{
    const QString name = namingText(page);
    WordMatch best;
    const QString folded = FoldedText::folded(name);
    for (const SearchWord &word : words.all()) {
        const WordMatch found = word.best(folded);
        if (found.fit > best.fit)
            best = found;
    }
    return lineAround(name, best.fit == Fit::none ? 0 : FoldedText::originOf(name, best.place), words);
}

} // namespace

PageRow hitRow(const PelkoDocument &page, const PageHit &hit, const SearchWords &words)
{
    PageRow row;
    row.page = page;
    if (hit.text < 0) {
        row.name = nameOfHit(page, words);
        return row;
    }
    const QString text = textNumber(page, hit.text);
    const HighlightedLine line = lineAround(text, FoldedText::originOf(text, hit.place), words);
    if (isSpark(page)) {
        row.name = line;
        return row;
    }
    row.name = nameOfHit(page, words);
    row.context = line;
    return row;
}
