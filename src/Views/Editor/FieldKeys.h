#pragma once

#include "Editor/Passages.h"

class EditorViewModel;
class FieldCaret;
struct EditorKey;

/// Handles the keys in one text that its field does not handle: joining, splitting and breaking lines,
/// indenting code, and the clipboard, because a field would change some characters.
class FieldKeys
{
public:
    FieldKeys(FieldCaret &field, EditorViewModel &editor) : m_field(field), m_editor(editor) {}

    /// Returns whether the key was handled.
    bool pressed(const EditorKey &key) const;

private:
    bool isBare() const;
    /// The text in the store.
    Passage passage() const;
    bool isCode() const;
    bool copies(bool cuts) const;
    bool joinsBackward() const;
    bool deletesBackward() const;
    bool joinsForward() const;
    bool breaksLine() const;
    bool splits() const;
    bool indents() const;
    bool unindents() const;
    /// Indents the selected lines, or unindents them.
    void moveLines(bool inwards) const;

    FieldCaret &m_field;
    EditorViewModel &m_editor;
};
