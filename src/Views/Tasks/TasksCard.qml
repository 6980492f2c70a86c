import QtQuick
import Pelko

/// The tasks of the whole library by document, the number of open ones, and the field that adds one to the open page.
PanelCard {
    id: card

    required property TasksPanelViewModel panel

    spacing: Metrics.space10

    CardHeader {
        caption: qsTr("TASKS")
        count: card.panel.pendingCount
        font: Typography.caption
        glow: 0.9
        ink: 0.7
        symbol: "flame.fill"
    }

    QuickAddField {
        id: field

        panel: card.panel
        width: parent.width
    }

    FullFieldNote {
        field: field.input
        width: parent.width
    }

    Item {
        height: list.empty ? none.height : list.height - 2 * list.air
        width: parent.width

        Text {
            id: none

            Accessible.name: text
            Accessible.role: Accessible.StaticText
            anchors.left: parent.left
            color: FirePalette.white(0.4)
            font: Typography.noTasks
            text: qsTr("No tasks yet.")
            textFormat: Text.PlainText
            visible: list.empty
        }

        TaskList {
            id: list

            panel: card.panel
            width: parent.width + 2 * air
            x: -air
            y: -air
            onEmptied: field.takeFocus()
        }
    }
}
