import QtQuick
import Pelko

/// The title of the page on a capsule of glass over the page. A tick is shown for a moment after a save; it is not read
/// out. While there are changes that could not be saved, a warning sign is shown instead.
GlassSurface {
    id: root

    required property string title
    required property real maximumWidth
    property bool saved: false
    /// Why the last save failed; empty if it succeeded.
    property string saveError: ""
    readonly property bool isUnsaved: saveError !== ""
    readonly property real tickWidth: Math.max(tick.opacity, isUnsaved ? 1 : 0) * (Metrics.savedTick + Metrics.space8)

    implicitHeight: Metrics.capsuleHeight
    kind: Glass.capsule
    implicitWidth: Math.min(maximumWidth, row.width + tickWidth + 2 * Metrics.space12)

    Row {
        id: row

        anchors { left: parent.left; leftMargin: Metrics.space12; verticalCenter: parent.verticalCenter }
        spacing: Metrics.space8

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            color: FirePalette.amber
            height: width
            radius: width / 2
            width: Metrics.capsuleDot
        }

        Text {
            Accessible.name: text
            Accessible.role: Accessible.StaticText
            color: FirePalette.white(0.8)
            elide: Text.ElideRight
            font: Typography.capsule
            maximumLineCount: 1
            renderType: Text.NativeRendering
            // A heading can be a megabyte; this is more than fits.
            text: root.title.slice(0, 500).replace(/\s*[\n-\r\u0085\u2028\u2029]\s*/g, " ")
            textFormat: Text.PlainText
            width: Math.min(implicitWidth, root.maximumWidth - 2 * Metrics.space12 - Metrics.capsuleDot - Metrics.space8
                            - root.tickWidth)
        }
    }

    SymbolIcon {
        id: tick

        Accessible.ignored: true
        anchors { right: parent.right; rightMargin: Metrics.space12; verticalCenter: parent.verticalCenter }
        color: FirePalette.amberSoft
        name: "checkmark"
        opacity: root.saved && !root.isUnsaved ? 1 : 0
        size: Metrics.savedTick
        visible: opacity > 0

        Behavior on opacity {
            NumberAnimation { duration: root.saved ? Motion.savedIn : Motion.savedOut }
        }
    }

    SymbolIcon {
        Accessible.description: root.saveError
        Accessible.name: qsTr("Not saved")
        Accessible.role: Accessible.Graphic
        anchors { right: parent.right; rightMargin: Metrics.space12; verticalCenter: parent.verticalCenter }
        color: FirePalette.destructive
        name: "exclamationmark.triangle"
        size: Metrics.savedTick
        visible: root.isUnsaved
    }
}
