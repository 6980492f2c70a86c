import QtQuick
import Pelko

/// What the row of a block asks of the editor of its kind.
FocusScope {
    /// How far below the top its first line stands, which is where the grip is.
    property real firstLine: Math.min(height, Metrics.gripHeight) / 2

    /// Rounds the corners of what is washed over it.
    property real cornerRadius: Metrics.pictureRadius

    /// Whether the pointer over it is shown by a wash.
    property bool showsHover: true

    /// Has the focus in the place of the block, where it has nothing but a control.
    property Item control: null

    /// The keyboard walked here, so the place of the focus has to be plain to see.
    property bool walkedTo: false

    /// Makes the field of a text that is not in sight; most kinds have their field always.
    function makeField(address: textAddress) {}

    /// Takes the keyboard focus, in the field of that text where there is one; `caret` -1 is the end.
    function takeFocus(address: textAddress, caret: int) {
        walkedTo = true
        forceActiveFocus()
    }
}
