import QtQuick
import Pelko

/// What keys do in a field beyond changing its text: they join, split and break lines, take back, and indent
/// code. Tab stays in code, so there it is Ctrl+Tab that walks on.
Item {
    id: root

    required property TextEdit field
    required property BlockRow row
    required property string todoID
    required property string content

    readonly property WritingKeys keys: row?.page.editor.keys ?? null

    function hasSelection() : bool {
        return field.selectionStart !== field.selectionEnd
    }

    function bare() : bool {
        return !hasSelection() && field.preeditText === ""
    }

    function joinsBackwards(event: KeyEvent) : bool {
        const joins = event.key === Qt.Key_Backspace && bare() && field.cursorPosition === 0
        if (joins)
            keys.joinBackwards(row.blockID, todoID)
        return joins
    }

    /// The field by itself would delete an emoji in pieces.
    function erasesBackwards(event: KeyEvent) : bool {
        const isPlain = (event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier)) === 0
        const erases = event.key === Qt.Key_Backspace && isPlain && bare()
        if (erases)
            field.remove(field.cursorPosition - FieldText.backspaceLength(textBefore()), field.cursorPosition)
        return erases
    }

    /// The last of the text before the caret; as much as one character may be made of.
    function textBefore() : string {
        return field.getText(Math.max(0, field.cursorPosition - 256), field.cursorPosition)
    }

    // With Shift the key cuts.
    function joinForwards(event: KeyEvent) {
        event.accepted = bare() && field.cursorPosition === field.length && !(event.modifiers & Qt.ShiftModifier)
        // The end of a text that is cut is somewhere else.
        if (event.accepted && field.length === content.length)
            keys.joinForwards(row.blockID, todoID)
    }

    function makeLine(event: KeyEvent) {
        const breaks = (event.modifiers & ~Qt.KeypadModifier) === Qt.ShiftModifier
        event.accepted = breaks || /[\n\r\u2028\u2029]/.test(content)
        if (event.accepted)
            breaks
                ? keys.breakLine(row.blockID, todoID, field.selectionStart, field.selectionEnd)
                : keys.split(row.blockID, todoID, field.selectionStart, field.selectionEnd)
    }

    function indent(event: KeyEvent) {
        event.accepted = row.kind === "code" && event.modifiers === Qt.NoModifier
        if (event.accepted)
            hasSelection() ? moveLines(true) : field.insert(field.cursorPosition, "\t")
    }

    function unindent(event: KeyEvent) {
        const caret = field.cursorPosition
        const removesTab = bare() && field.getText(caret - 1, caret) === "\t"
        event.accepted = row.kind === "code" && (hasSelection() || removesTab)
        if (event.accepted)
            removesTab ? field.remove(caret - 1, caret) : moveLines(false)
    }

    /// Moves the selected lines one step inwards or outwards. They stay selected, from the start of the first.
    function moveLines(inwards: bool) {
        const start = field.getText(0, field.selectionStart).lastIndexOf("\n") + 1
        const behind = field.length - field.selectionEnd
        inwards ? keys.indent(row.blockID, field.selectionStart, field.selectionEnd)
                : keys.unindent(row.blockID, field.selectionStart, field.selectionEnd)
        field.select(start, field.length - behind)
    }

    function undoes(event: KeyEvent) : bool {
        const undoes = event.key === Qt.Key_Z && event.modifiers === Qt.ControlModifier
        if (undoes)
            row.page.editor.undo()
        return undoes
    }

    function redoes(event: KeyEvent) : bool {
        const isControlY = event.key === Qt.Key_Y && event.modifiers === Qt.ControlModifier
        const isShiftZ = event.key === Qt.Key_Z && event.modifiers === (Qt.ControlModifier | Qt.ShiftModifier)
        const redoes = isControlY || isShiftZ
        if (redoes)
            row.page.editor.redo()
        return redoes
    }

    Keys.onBacktabPressed: event => unindent(event)
    Keys.onDeletePressed: event => joinForwards(event)
    Keys.onEnterPressed: event => makeLine(event)
    Keys.onPressed: event => event.accepted = joinsBackwards(event) || erasesBackwards(event)
                             || undoes(event) || redoes(event)
    Keys.onReturnPressed: event => makeLine(event)
    Keys.onTabPressed: event => indent(event)
}
