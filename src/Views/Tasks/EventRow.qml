import QtQuick
import Pelko

/// One event: a bar, its title and its start.
Item {
    id: row

    required property string title
    required property string time

    Accessible.name: row.title + ", " + row.time
    Accessible.role: Accessible.StaticText
    implicitHeight: words.height

    SoftShadow {
        anchors.fill: bar
        blur: 2 * 3
        color: Qt.alpha(FirePalette.amber, 0.5)
        radius: bar.radius
    }

    Rectangle {
        id: bar

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        color: Qt.alpha(FirePalette.amber, 0.7)
        height: Metrics.eventBarHeight
        radius: width / 2
        width: Metrics.eventBarWidth
    }

    Column {
        id: words

        anchors { left: parent.left; leftMargin: Metrics.eventTextIndent; right: parent.right }

        Text {
            Accessible.ignored: true
            color: FirePalette.white(0.85)
            elide: Text.ElideRight
            font: Typography.capsule
            lineHeight: Typography.taskLine
            lineHeightMode: Text.FixedHeight
            maximumLineCount: 1
            text: row.title
            textFormat: Text.PlainText
            width: parent.width
        }

        Text {
            Accessible.ignored: true
            anchors.left: parent.left
            color: FirePalette.white(0.45)
            font: Typography.eventTime
            lineHeight: Typography.eventTimeLine
            lineHeightMode: Text.FixedHeight
            text: row.time
            textFormat: Text.PlainText
        }
    }
}
