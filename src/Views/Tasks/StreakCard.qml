import QtQuick
import Pelko

/// For how many days in a row there was a use of the program, beside a flame that burns while it can be seen.
PanelCard {
    id: card

    required property TasksPanelViewModel panel
    /// Whether the card is in the part of the panel that is not scrolled away.
    property bool inSight: true

    Row {
        Accessible.name: qsTr("Streak: %1 %2").arg(card.panel.currentStreak).arg(card.panel.streakUnit)
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
                color: FirePalette.white(0.4)
                font: Typography.streakCaption
                text: qsTr("STREAK")
                textFormat: Text.PlainText
            }

            Item {
                height: Typography.streakLine
                width: childrenRect.width

                DigitalTime {
                    id: figure

                    anchors.verticalCenter: parent.verticalCenter
                    color: FirePalette.white(0.95)
                    font: Typography.streakFigure
                    rolls: true
                    text: String(card.panel.currentStreak)
                }

                Text {
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
