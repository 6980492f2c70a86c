#pragma once

#include "Models/PelkoDocument.h"
#include "Navigation/SearchWords.h"

/// A page that contains all words.
struct PageHit {
    /// The index in the searched list.
    qsizetype page = 0;
    /// Higher is better.
    int rank = 0;
    /// The index of the best matching text, counted as by visitTexts, without the title; -1 for none.
    qsizetype text = -1;
    /// The position of the match in the folded text.
    qsizetype place = -1;

    bool operator==(const PageHit &) const = default;
};

struct PageHits {
    /// The best pages, best first; of equal ones, the newest first.
    QList<PageHit> best;
    /// The number of all pages found.
    qsizetype total = 0;
};

/// Finds the pages that contain all words in the title or the texts. A match in the title ranks above one in
/// a text; a whole word above the beginning of a word, and that above the middle. Reads every text once for
/// each word; there is no index.
PageHits findPages(const QList<PelkoDocument> &documents, const SearchWords &words, qsizetype limit);
