import QtQuick
import Pelko

/// A round glass button over a block, with the symbol `icon.name`. Under the pointer it expands and shows its label.
PressableControl {
    id: capsule

    property Item backdrop: null
    /// How much the glass turns red as the button expands, from 0 to 1.
    property real danger: 0

    readonly property real unfolded: Math.max(0, Math.min(1, hoverAmount))
    readonly property real sidePadding: 4 + 8 * hoverAmount
    readonly property real contentWidth: symbol.width + (5 + Math.ceil(label.implicitWidth)) * hoverAmount

    pressScale: 0.94
    pressResponse: 0.2
    pressDamping: 0.5
    hoverResponse: 0.35
    hoverDamping: 0.7
    implicitHeight: Metrics.chipHeight
    implicitWidth: Math.max(Metrics.chipHeight, contentWidth + 2 * sidePadding)

    background: GlassSurface {
        kind: Glass.capsule
        backdrop: capsule.backdrop
        lift: 0.04 * capsule.unfolded + 0.05 * capsule.pressAmount

        GlassPlate {
            anchors.fill: parent
            kind: Glass.destructive
            opacity: capsule.danger * capsule.unfolded
            visible: opacity > 0
        }
    }

    SymbolIcon {
        id: symbol

        x: (capsule.width - capsule.contentWidth) / 2
        anchors.verticalCenter: parent.verticalCenter
        name: capsule.icon.name
        size: 10
        color: Qt.alpha(FirePalette.ink, 0.86 + 0.1 * capsule.unfolded)
    }

    Item {
        anchors.left: symbol.right
        anchors.leftMargin: 5
        width: Math.max(0, capsule.width - x - capsule.sidePadding)
        height: parent.height
        clip: true
        opacity: capsule.hoverAmount
        visible: opacity > 0

        Text {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            text: capsule.name
            textFormat: Text.PlainText
            font: Typography.capsule
            color: FirePalette.white(0.95)
            Accessible.ignored: true
        }
    }
}
