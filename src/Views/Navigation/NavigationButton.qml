import QtQuick
import Pelko

/// The round glass button beside the title that opens and closes the navigation.
PressableControl {
    id: button

    property bool active: false
    property Item backdrop: null

    implicitHeight: Metrics.capsuleHeight
    implicitWidth: Metrics.capsuleHeight
    name: qsTr("Go to")

    Accessible.checkable: true
    Accessible.checked: active

    background: GlassSurface {
        backdrop: button.backdrop
        kind: Glass.capsule
        lift: 0.09 * Math.max(button.hoverAmount, button.active ? 1 : 0) + 0.05 * button.pressAmount
    }

    SymbolIcon {
        anchors.centerIn: parent
        color: FirePalette.white(0.72 + 0.28 * Math.max(button.hoverAmount, button.active ? 1 : 0))
        name: "rectangle.stack"
        size: Metrics.navigationGlyph
    }
}
