import QtQuick
import Pelko

/// A button with a label and, if `icon.name` is set, a symbol: of plain glass, warm for the main choice of a view, or
/// red for a destructive one.
PressableControl {
    id: button

    property GlassKind kind: Glass.capsule
    property Item backdrop: null
    property bool casts: false

    pressScale: 0.95
    implicitHeight: 36
    implicitWidth: row.implicitWidth + 36

    background: GlassSurface {
        kind: button.kind
        backdrop: button.backdrop
        casts: button.casts
        lift: 0.06 * button.hoverAmount + 0.04 * button.pressAmount
    }

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Metrics.space8

        SymbolIcon {
            anchors.verticalCenter: parent.verticalCenter
            visible: button.icon.name !== ""
            name: button.icon.name
            size: 14
            color: FirePalette.white(0.96)
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: button.name
            textFormat: Text.PlainText
            font: Typography.button
            color: FirePalette.white(0.96)
            Accessible.ignored: true
        }
    }
}
