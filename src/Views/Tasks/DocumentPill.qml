import QtQuick
import Pelko

/// The word count of the open page and the time since its last edit.
GlassSurface {
    id: pill

    required property string text

    Accessible.name: text
    Accessible.role: Accessible.StaticText
    implicitHeight: Metrics.pillHeight
    implicitWidth: Math.min(row.implicitWidth + 2 * Metrics.space10, Metrics.panelWidth - 2 * Metrics.panelPadding)
    kind: Glass.clear

    Row {
        id: row

        anchors { left: parent.left; leftMargin: Metrics.space10; verticalCenter: parent.verticalCenter }
        spacing: Metrics.space8

        Item {
            anchors.verticalCenter: parent.verticalCenter
            height: Metrics.capsuleDot
            width: Metrics.capsuleDot

            SoftShadow {
                anchors.fill: parent
                blur: 5
                color: Qt.alpha(FirePalette.amber, 0.5)
                radius: Metrics.capsuleDot / 2
            }

            Rectangle {
                anchors.fill: parent
                color: Qt.alpha(FirePalette.amber, 0.6)
                radius: width / 2
            }
        }

        Text {
            Accessible.ignored: true
            color: FirePalette.white(0.8)
            font: Typography.capsule
            text: pill.text
            textFormat: Text.PlainText
        }
    }
}
