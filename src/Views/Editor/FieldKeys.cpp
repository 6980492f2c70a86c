#include "FieldKeys.h"

#include "Editor/BackspaceLength.h"
#include "Editor/EditorViewModel.h"
#include "EditorKeys.h"
#include "FieldCaret.h"

#include <algorithm>

namespace
{

/// An emoji has fewer UTF-16 units.
constexpr int longestCharacter = 256;

bool hasLineBreak(const QString &text)
{
    return std::ranges::any_of(
        text, [](QChar character) { return QStringView(u"\n\r\u2028\u2029").contains(character); });
}

} // namespace

bool FieldKeys::pressed(const EditorKey &key) const
{
    switch (key.action) {
    case EditorAction::copy:
    case EditorAction::cut:
        return copies(key.action == EditorAction::cut);
    case EditorAction::paste:
        return m_editor.selection()->pasteText(m_field.selection());
    case EditorAction::deleteBackward:
        return joinsBackward() || deletesBackward();
    case EditorAction::deleteRangeBackward:
        return joinsBackward();
    case EditorAction::deleteForward:
    case EditorAction::deleteRangeForward:
        return joinsForward();
    case EditorAction::newBlock:
        return splits();
    case EditorAction::newLine:
        return breaksLine();
    case EditorAction::indent:
        return indents();
    case EditorAction::unindent:
        return unindents();
    default:
        return false;
    }
}

bool FieldKeys::isBare() const
{
    return m_field.anchor() == m_field.caret();
}

Passage FieldKeys::passage() const
{
    const Passages &passages = m_editor.selection()->passages();
    const qsizetype index = passages.indexOf(m_field.id());
    return index < 0 ? Passage() : passages.at(index);
}

bool FieldKeys::isCode() const
{
    return passage().type == BlockType::code;
}

bool FieldKeys::copies(bool cuts) const
{
    if (isBare())
        return false;
    PageSelection &selection = *m_editor.selection();
    cuts ? selection.cutText(m_field.selection()) : selection.copyText(m_field.selection());
    return true;
}

bool FieldKeys::joinsBackward() const
{
    const bool joins = isBare() && m_field.caret() == 0;
    if (joins)
        m_editor.keys()->joinBackwards(m_field.id());
    return joins;
}

bool FieldKeys::deletesBackward() const
{
    if (!isBare())
        return false;
    const int caret = m_field.caret();
    const QString before = m_field.textBetween(std::max(0, caret - longestCharacter), caret);
    m_field.remove(caret - static_cast<int>(backspaceLength(before)), caret);
    return true;
}

bool FieldKeys::joinsForward() const
{
    const bool isAtEnd = isBare() && m_field.caret() == m_field.length();
    // In a cut text the shown end is not the end of the text.
    if (isAtEnd && !m_field.isCut())
        m_editor.keys()->joinForwards(m_field.id());
    return isAtEnd;
}

bool FieldKeys::breaksLine() const
{
    m_editor.keys()->breakLine(m_field.id(), m_field.stretch());
    return true;
}

bool FieldKeys::splits() const
{
    const bool isMine = hasLineBreak(passage().text.value_or(QString()));
    if (isMine)
        m_editor.keys()->split(m_field.id(), m_field.stretch());
    return isMine;
}

bool FieldKeys::indents() const
{
    if (!isCode())
        return false;
    if (isBare())
        m_field.insert(m_field.caret(), QStringLiteral("\t"));
    else
        moveLines(true);
    return true;
}

bool FieldKeys::unindents() const
{
    const int caret = m_field.caret();
    const bool removesTab = isBare() && m_field.textBetween(std::max(0, caret - 1), caret) == u'\t';
    if (!isCode() || (isBare() && !removesTab))
        return false;
    if (removesTab)
        m_field.remove(caret - 1, caret);
    else
        moveLines(false);
    return true;
}

// The lines stay selected.
void FieldKeys::moveLines(bool inwards) const
{
    const auto selected = m_field.stretch();
    const QString before = passage().text.value_or(QString()).first(selected.start);
    const int start = static_cast<int>(before.lastIndexOf(u'\n')) + 1;
    const int behind = m_field.length() - selected.end;
    WritingKeys &keys = *m_editor.keys();
    inwards ? keys.indent(m_field.id(), selected) : keys.unindent(m_field.id(), selected);
    m_field.select(start, m_field.length() - behind);
}
