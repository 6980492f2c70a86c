import QtQuick
import Pelko

/// The caret of a field. It stops blinking some time after the last activity, because every blink costs a redraw.
Item {
    id: root

    // The field, a TextInput or a TextEdit.
    readonly property var field: parent
    readonly property bool blinking: field?.activeFocus && field.selectedText === ""

    property int blinksLeft: 0

    function wake() {
        bar.opacity = 1
        blinksLeft = Metrics.caretBlinks
    }

    height: field?.cursorRectangle.height ?? 0
    width: Metrics.caretWidth
    onXChanged: wake()
    onYChanged: wake()
    onBlinkingChanged: wake()

    Rectangle {
        id: bar

        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: Math.round((root.field?.font.pixelSize ?? 0) * 1.2)
        radius: 1
        color: FirePalette.caret
        visible: root.blinking
    }

    Timer {
        interval: Application.styleHints.cursorFlashTime / 2
        repeat: true
        running: root.blinking && root.blinksLeft > 0 && interval > 0
        onTriggered: {
            bar.opacity = 1 - bar.opacity
            root.blinksLeft -= bar.opacity
        }
    }
}
