pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The latest sparks on cards below a heading with their number, or a hint if there are none.
Column {
    id: root

    required property PomodoroViewModel panel

    signal menuRequested(string sparkID, string text, Item item, real x, real y)

    function focusCard(index: int) {
        cards.itemAt(Math.max(0, Math.min(cards.count - 1, index)))?.forceActiveFocus(Qt.TabFocusReason)
    }

    spacing: Metrics.space10 + 1

    Item {
        width: parent.width
        height: 11

        Text {
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            text: qsTr("RECENT")
            textFormat: Text.PlainText
            font: Typography.recentCaption
            color: FirePalette.white(0.45)
            Accessible.role: Accessible.Heading
            Accessible.name: root.panel.sparkCount === 0 ? text : qsTr("Recent sparks: %n", "", root.panel.sparkCount)
        }

        Text {
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: root.panel.sparkCount > 0
            text: root.panel.sparkCount
            textFormat: Text.PlainText
            font: Typography.sparkCount
            color: FirePalette.white(0.3)
            Accessible.ignored: true
        }
    }

    Column {
        width: parent.width
        spacing: Metrics.space8
        visible: root.panel.sparkCount > 0

        Repeater {
            id: cards

            model: root.panel.sparks

            SparkCard {
                id: card

                required property int index

                width: root.width
                onMenuRequested: (x, y) => root.menuRequested(card.sparkID, card.text, card, x, y)
                Keys.onUpPressed: root.focusCard(card.index - 1)
                Keys.onDownPressed: root.focusCard(card.index + 1)
            }
        }
    }

    Item {
        width: parent.width
        height: Metrics.sparksHintHeight
        visible: root.panel.sparkCount === 0

        Text {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: -Metrics.space6
            text: qsTr("Sparks you capture appear here.")
            textFormat: Text.PlainText
            font: Typography.sparkText
            color: FirePalette.white(0.45)
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
