import QtQuick
import Pelko

/// The round bin over a block under the pointer; pointed at itself, it warms up and says what it does.
PressableControl {
    id: bubble

    property Item backdrop: null

    readonly property real sidePadding: 4 + 8 * hoverAmount
    readonly property real contentWidth: symbol.width + (5 + Math.ceil(label.implicitWidth)) * hoverAmount

    name: "Delete"
    pressScale: 0.94
    pressResponse: 0.2
    pressDamping: 0.5
    hoverResponse: 0.35
    hoverDamping: 0.7
    implicitHeight: Metrics.chipHeight
    implicitWidth: Math.max(Metrics.chipHeight, contentWidth + 2 * sidePadding)

    background: GlassSurface {
        kind: Glass.capsule
        backdrop: bubble.backdrop
        lift: 0.05 * bubble.pressAmount

        GlassPlate {
            anchors.fill: parent
            kind: Glass.destructive
            opacity: 0.62 * Math.max(0, Math.min(1, bubble.hoverAmount))
            visible: opacity > 0
        }
    }

    SymbolIcon {
        id: symbol

        x: (bubble.width - bubble.contentWidth) / 2
        anchors.verticalCenter: parent.verticalCenter
        name: "trash"
        size: 12
        color: Qt.alpha(FirePalette.ink, 0.86 + 0.1 * Math.min(1, bubble.hoverAmount))
    }

    Item {
        anchors.left: symbol.right
        anchors.leftMargin: 5
        width: Math.max(0, bubble.width - x - bubble.sidePadding)
        height: parent.height
        clip: true
        opacity: bubble.hoverAmount
        visible: opacity > 0

        Text {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            text: bubble.name
            textFormat: Text.PlainText
            font: Typography.capsule
            color: FirePalette.white(0.95)
            Accessible.ignored: true
        }
    }
}
