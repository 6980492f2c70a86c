#pragma once

#include "Editor/Edit.h"
#include "Editor/TextChange.h"

/// Keys that were typed one after the other in one field, and that are taken back together. A run goes on
/// while single characters are added, or removed, next to each other. It ends where a word begins, so that
/// taking back goes word by word.
class TypingRun
{
public:
    /// `field` is where the key was typed; its caret does not count.
    TypingRun(const FocusTarget &field, TextChange key) : m_field(field), m_key(std::move(key)) {}

    /// Whether a further key belongs to the run.
    bool isContinuedBy(const TypingRun &next) const;

private:
    FocusTarget m_field;
    TextChange m_key;
};
