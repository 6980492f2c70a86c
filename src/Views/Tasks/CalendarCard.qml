pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The upcoming events of the calendars.
PanelCard {
    id: card

    required property TasksPanelViewModel panel

    readonly property UpcomingEvents events: panel.upcomingEvents

    spacing: Metrics.space10

    CardHeader {
        caption: qsTr("UP NEXT")
        count: card.events.total
        symbol: "calendar"
    }

    Text {
        Accessible.name: text
        Accessible.role: Accessible.StaticText
        anchors.left: parent.left
        color: FirePalette.white(0.5)
        font: Typography.taskText
        text: qsTr("Nothing scheduled")
        textFormat: Text.PlainText
        visible: card.events.total === 0
    }

    Column {
        spacing: Metrics.space8
        visible: card.events.total > 0
        width: parent.width

        Repeater {
            model: card.events

            EventRow {
                width: parent?.width ?? 0
            }
        }
    }
}
