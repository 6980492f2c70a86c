import QtQuick
import Pelko

/// A round button of the window frame with the symbol `icon.name`. Its background appears under the pointer, for the
/// close button in ember.
PressableControl {
    id: button

    property bool closes: false
    property bool active: false

    readonly property color hoverColor: closes ? FirePalette.ember : FirePalette.hoverFill

    implicitWidth: Metrics.captionSize
    implicitHeight: Metrics.captionSize

    background: Item {
        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: button.hoverColor
            opacity: button.active ? 1 : button.hoverAmount
        }

        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: FirePalette.pressFill
            opacity: button.pressAmount
        }
    }

    SymbolIcon {
        anchors.centerIn: parent
        name: button.icon.name
        size: Metrics.captionGlyph
        color: FirePalette.white(0.62 + 0.38 * (button.active ? 1 : button.hoverAmount))
    }
}
