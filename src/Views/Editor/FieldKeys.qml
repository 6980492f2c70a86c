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

    function bare() : bool {
        return field.selectionStart === field.selectionEnd && !field.inputMethodComposing
    }

    function joinsBackwards(event: KeyEvent) : bool {
        const joins = event.key === Qt.Key_Backspace && bare() && field.cursorPosition === 0
        if (joins)
            keys.joinBackwards(row.blockID, todoID)
        return joins
    }

    function joinForwards(event: KeyEvent) {
        event.accepted = bare() && field.cursorPosition === field.length
        if (event.accepted)
            keys.joinForwards(row.blockID, todoID)
    }

    function makeLine(event: KeyEvent) {
        event.accepted = event.modifiers === Qt.ShiftModifier || content.includes("\n")
        if (event.accepted)
            event.modifiers === Qt.ShiftModifier
                ? keys.breakLine(row.blockID, todoID, field.selectionStart, field.selectionEnd)
                : keys.split(row.blockID, todoID, field.selectionStart, field.selectionEnd)
    }

    function indent(event: KeyEvent) {
        event.accepted = row.kind === "code" && event.modifiers === Qt.NoModifier
        if (event.accepted)
            field.remove(field.selectionStart, field.selectionEnd)
        if (event.accepted)
            field.insert(field.cursorPosition, "\t")
    }

    function unindent(event: KeyEvent) {
        const caret = field.cursorPosition
        event.accepted = row.kind === "code" && bare() && field.getText(caret - 1, caret) === "\t"
        if (event.accepted)
            field.remove(caret - 1, caret)
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
    Keys.onPressed: event => event.accepted = joinsBackwards(event) || undoes(event) || redoes(event)
    Keys.onReturnPressed: event => makeLine(event)
    Keys.onTabPressed: event => indent(event)
}
