#pragma once

#include "Editor/Edit.h"
#include "Editor/TextChange.h"

/// Consecutive keys in one field that are undone together. A run consists of single characters that are
/// added, or removed, next to each other. It ends before a new word, so that undo goes word by word.
class TypingRun
{
public:
    /// `field` is the text in which the key was typed; its caret is ignored.
    TypingRun(const FocusTarget &field, TextChange key) : m_field(field), m_key(std::move(key)) {}

    /// Returns whether a further key belongs to the run.
    bool isContinuedBy(const TypingRun &next) const;

private:
    FocusTarget m_field;
    TextChange m_key;
};
