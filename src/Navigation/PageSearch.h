#pragma once

#include "Models/PelkoDocument.h"
#include "Navigation/SearchWords.h"

/// A page on which all words were found.
struct PageHit {
    /// Where it stands in the list that was searched.
    qsizetype page = 0;
    /// The higher, the better the words fit.
    int rank = 0;
    /// The text in which they fit best, counted as visitTexts does, apart from the title; -1 for none.
    qsizetype text = -1;
    /// The place in that text when it is folded.
    qsizetype place = -1;

    bool operator==(const PageHit &) const = default;
};

struct PageHits {
    /// The best of them, best first; of equals, the one that was written last.
    QList<PageHit> best;
    /// Of all, not only the best.
    qsizetype total = 0;
};

/// The pages on which all the words stand, in the title or in the texts. What stands in a title fits better,
/// and so does a whole word than the beginning of one, and that better than the middle. Reads every text
/// once for each word: nothing is kept that could be out of date.
PageHits findPages(const QList<PelkoDocument> &documents, const SearchWords &words, qsizetype limit);
