#pragma once

#include "Editor/TextAddress.h"
#include "Models/PelkoDocument.h"

#include <functional>

/// Where the caret goes after an edit.
struct FocusTarget {
    /// Stands for the end of the text, whatever its length.
    static constexpr int atEnd = -1;

    TextAddress address;
    /// Counted in UTF-16 units from the start of the text.
    int caret = atEnd;

    bool operator==(const FocusTarget &) const = default;
};

/// What an editing rule made of a page: the page, and where the writer goes on.
struct Edit {
    PelkoDocument document;
    std::optional<FocusTarget> focus = std::nullopt;
    /// The block to bring into sight, where the focus does not do that.
    std::optional<QUuid> scrollTo = std::nullopt;
    /// When a rule made something else of what was typed, the page with the typed characters: undo stops
    /// there.
    std::optional<PelkoDocument> asTyped = std::nullopt;
};

/// Makes an edit of the page as it is at that moment, or nothing.
using EditOperation = std::function<std::optional<Edit>(PelkoDocument)>;
