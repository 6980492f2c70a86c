import QtQuick
import Pelko

/// The time and the date.
PanelCard {
    id: card

    required property TasksPanelViewModel panel

    spacing: Metrics.space6

    Item {
        Accessible.name: card.panel.time + " " + card.panel.timeMarker
        Accessible.role: Accessible.StaticText
        height: Typography.clockLine
        width: parent.width

        DigitalTime {
            id: time

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            color: FirePalette.white(0.95)
            font: Typography.clock
            footColor: FirePalette.white(0.75)
            rolls: true
            text: card.panel.time
        }

        Text {
            Accessible.ignored: true
            anchors { baseline: time.baseline; left: time.right; leftMargin: Metrics.space6 }
            color: FirePalette.white(0.7)
            font: Typography.clockMarker
            text: card.panel.timeMarker
            textFormat: Text.PlainText
        }
    }

    Text {
        Accessible.name: text
        Accessible.role: Accessible.StaticText
        color: FirePalette.white(0.7)
        elide: Text.ElideRight
        font: Typography.capsule
        text: card.panel.dateString
        textFormat: Text.PlainText
        width: parent.width
    }
}
