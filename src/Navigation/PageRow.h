#pragma once

#include "Navigation/HighlightedLine.h"
#include "Navigation/PageSearch.h"

/// One page in the list of the navigation. What costs something to tell of the page is left until it is asked
/// for: there may be ten thousand of them, of which ten are seen.
struct PageRow {
    PelkoDocument page;
    bool isOpen = false;
    /// Where a search found it: its name, and the text that speaks of it.
    std::optional<HighlightedLine> name;
    std::optional<HighlightedLine> context;

    bool operator==(const PageRow &) const = default;
};

inline QUuid rowKey(const PageRow &row)
{
    return row.page.id;
}

/// The row of a page that was found.
PageRow hitRow(const PelkoDocument &page, const PageHit &hit, const SearchWords &words);
