import QtQuick
import Pelko

/// The time and the day.
PanelCard {
    id: card

    required property TasksPanelViewModel panel

    // Half the height of a digit: both stand on one line.
    readonly property int halfDigit: 12

    spacing: Metrics.space6

    Row {
        Accessible.name: card.panel.time + " " + card.panel.timeMarker
        Accessible.role: Accessible.StaticText
        height: Typography.clockLine
        spacing: Metrics.space6

        DigitalTime {
            anchors.verticalCenter: parent.verticalCenter
            color: FirePalette.white(0.95)
            font: Typography.clock
            rolls: true
            text: card.panel.time
        }

        Text {
            Accessible.ignored: true
            anchors { baseline: parent.verticalCenter; baselineOffset: card.halfDigit }
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
