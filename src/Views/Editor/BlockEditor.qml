import QtQuick
import Pelko

/// The interface that the row of a block expects from the editor of its kind.
FocusScope {
    /// The middle of the first line, from the top; the grip is beside it.
    property real firstLine: Math.min(height, Metrics.gripHeight) / 2

    /// The corner radius of the overlays for hover and selection.
    property real cornerRadius: Metrics.pictureRadius

    /// Whether hovering shows an overlay.
    property bool showsHover: true

    /// The control that takes the focus for a block without text.
    property Item control: null

    /// Whether the focus came by keyboard, so that it must be clearly visible.
    property bool walkedTo: false

    /// Creates the field of a text that has scrolled out of sight; most kinds always have their fields.
    function makeField(address: textAddress) {}

    /// Takes the focus, in the field of the text if it has one; `caret` -1 is the end.
    function takeFocus(address: textAddress, caret: int) {
        walkedTo = true
        forceActiveFocus()
    }
}
