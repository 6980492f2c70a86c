import QtQuick
import Pelko

/// The title of the page in a capsule of glass that floats over it.
GlassSurface {
    id: root

    required property string title
    required property real maximumWidth

    implicitHeight: Metrics.capsuleHeight
    kind: Glass.capsule
    implicitWidth: Math.min(maximumWidth, row.implicitWidth + 2 * Metrics.space12)

    Row {
        id: row

        anchors.centerIn: parent
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
            text: root.title.replace(/\s*\n\s*/g, " ")
            textFormat: Text.PlainText
            width: Math.min(implicitWidth, root.maximumWidth - 2 * Metrics.space12 - Metrics.capsuleDot - Metrics.space8)
        }
    }
}
