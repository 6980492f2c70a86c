#pragma once

#include "Editor/Passages.h"

class EditorViewModel;
class FieldCaret;
struct EditorKey;

/// What keys do in one text beyond what its field does by itself: they join, split and break lines, indent
/// code, and use the clipboard as the page does, because a field would turn some characters into others.
class FieldKeys
{
public:
    FieldKeys(FieldCaret &field, EditorViewModel &editor) : m_field(field), m_editor(editor) {}

    /// Tells whether the key has done its work.
    bool pressed(const EditorKey &key) const;

private:
    bool isBare() const;
    /// The text as it is stored.
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
    /// Moves the selected lines one step inwards or outwards.
    void moveLines(bool inwards) const;

    FieldCaret &m_field;
    EditorViewModel &m_editor;
};
