import QtQuick
import Pelko

/// What the row of a block asks of the editor of its kind.
FocusScope {
    /// How far below the top its first line stands, which is where the grip is.
    property real firstLine: Math.min(height, Metrics.gripHeight) / 2

    /// Has the focus in the place of the block, where it has nothing but a control.
    property Item control: null

    /// The keyboard walked here, so the place of the focus has to be plain to see.
    property bool walkedTo: false

    /// Makes the field of an entry that is not in sight; other kinds have their field always.
    function makeField(todoID: string) {}

    /// Takes the keyboard focus; `todoID` names an entry where the kind has any, `caret` -1 is the end.
    function takeFocus(todoID: string, caret: int) {
        walkedTo = true
        forceActiveFocus()
    }
}
