import QtQuick

/// What the row of a block asks of the editor of its kind.
FocusScope {
    required property Item keys

    /// Where the caret stands, in this item, while it is here.
    property rect caretRectangle

    /// The keyboard walked here, so the place of the focus has to be plain to see.
    property bool walkedTo: false

    /// Takes the keyboard focus; `todoID` names an entry where the kind has any, `caret` -1 is the end.
    function takeFocus(todoID: string, caret: int) {
        forceActiveFocus()
    }
}
