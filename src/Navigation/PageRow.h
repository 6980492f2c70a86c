#pragma once

#include "Navigation/HighlightedLine.h"
#include "Navigation/PageSearch.h"

/// One page in the list of the navigation. Texts that are slow to compute are computed when they are asked
/// for, because of ten thousand rows only some ten are visible.
struct PageRow {
    PelkoDocument page;
    bool isOpen = false;
    /// For search results: the highlighted name, and the text that contains the words.
    std::optional<HighlightedLine> name;
    std::optional<HighlightedLine> context;

    bool operator==(const PageRow &) const = default;
};

inline QUuid rowKey(const PageRow &row)
{
    return row.page.id;
}

/// Returns the row of a search result.
PageRow hitRow(const PelkoDocument &page, const PageHit &hit, const SearchWords &words);
