import QtQuick
import Pelko

/// The number of consecutive days on which the program was used, with a flame that moves while it is visible.
PanelCard {
    id: card

    required property TasksPanelViewModel panel
    /// Whether the card is in the visible part of the panel.
    property bool inSight: true

    Row {
        anchors.left: parent.left
        Accessible.name: qsTr("Streak: %n day(s)", "", card.panel.currentStreak)
        Accessible.role: Accessible.StaticText
        spacing: Metrics.space12

        Rectangle {
            color: Qt.alpha(FirePalette.amber, 0.12)
            height: Metrics.streakCoin
            radius: height / 2
            width: Metrics.streakCoin

            AnimatedFlame {
                anchors.centerIn: parent
                size: Metrics.streakFlame
                visible: card.inSight
            }
        }

        Column {
            anchors.verticalCenter: parent.verticalCenter

            Text {
                Accessible.ignored: true
                anchors.left: parent.left
                color: FirePalette.white(0.4)
                font: Typography.streakCaption
                text: qsTr("STREAK")
                textFormat: Text.PlainText
            }

            Item {
                anchors.left: parent.left
                height: Typography.streakLine
                width: figure.width + Metrics.space6 + unit.width

                DigitalTime {
                    id: figure

                    anchors { left: parent.left; verticalCenter: parent.verticalCenter }
                    color: FirePalette.white(0.95)
                    font: Typography.streakFigure
                    rolls: true
                    text: String(card.panel.currentStreak)
                }

                Text {
                    id: unit

                    Accessible.ignored: true
                    anchors { baseline: figure.baseline; left: figure.right; leftMargin: Metrics.space6 }
                    color: FirePalette.white(0.5)
                    font: Typography.capsule
                    text: card.panel.streakUnit
                    textFormat: Text.PlainText
                }
            }
        }
    }
}
