#pragma once

#include "Editor/TextAddress.h"
#include "Models/PelkoDocument.h"

#include <functional>

/// The text that gets the focus after an edit, and the position of its caret.
struct FocusTarget {
    /// The end of the text.
    static constexpr int atEnd = -1;

    TextAddress address;
    /// In UTF-16 units from the start of the text.
    int caret = atEnd;

    bool operator==(const FocusTarget &) const = default;
};

/// The result of an operation on a page: the changed page and the new focus.
struct Edit {
    PelkoDocument document;
    std::optional<FocusTarget> focus = std::nullopt;
    /// The block to scroll to, if the focus does not do that.
    std::optional<QUuid> scrollTo = std::nullopt;
    /// If a typing rule changed what was typed, the page with the typed characters, as a step of its own for
    /// undo.
    std::optional<PelkoDocument> asTyped = std::nullopt;
};

/// Returns the edit of the given page, or std::nullopt to do nothing.
using EditOperation = std::function<std::optional<Edit>(PelkoDocument)>;
