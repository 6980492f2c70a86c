import QtQuick
import Pelko

/// The word count of the library and the goal.
PanelCard {
    id: card

    required property TasksPanelViewModel panel

    spacing: Metrics.space6

    CardHeader {
        caption: qsTr("DAILY GOAL")
        symbol: "scroll.fill"
    }

    Item {
        Accessible.name: qsTr("%1 of %n word(s)", "", card.panel.wordGoal).arg(card.panel.wordTotal)
        Accessible.role: Accessible.StaticText
        height: Typography.goalLine
        width: parent.width

        DigitalTime {
            id: figure

            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            color: FirePalette.white(0.95)
            font: Typography.goalFigure
            rolls: true
            text: String(card.panel.wordTotal)
        }

        Text {
            Accessible.ignored: true
            anchors { baseline: figure.baseline; left: figure.right; leftMargin: Metrics.space6 }
            color: FirePalette.white(0.4)
            font: Typography.capsule
            text: "/ " + card.panel.wordGoal
            textFormat: Text.PlainText
        }
    }

    Item {
        height: Metrics.goalBarHeight + Metrics.space4
        width: parent.width

        GoalProgressBar {
            anchors.bottom: parent.bottom
            progress: card.panel.wordProgress
            width: parent.width
        }
    }
}
