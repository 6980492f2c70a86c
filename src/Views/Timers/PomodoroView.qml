import QtQuick
import Pelko

/// The pomodoro panel: the timer, the capture field, and the latest sparks.
FocusScope {
    id: root

    required property PomodoroViewModel panel

    LayoutMirroring.childrenInherit: true
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    implicitWidth: Metrics.timerPanelWidth
    implicitHeight: sections.height + 2 * Metrics.timerPanelPadding + Metrics.space6

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Pomodoro")

    Item {
        id: surface

        anchors.fill: parent

        Rectangle {
            anchors.fill: parent
            radius: Metrics.cardRadius
            color: FirePalette.deepBackground
        }

        Rectangle {
            anchors.fill: parent
            radius: Metrics.cardRadius
            gradient: Gradient {
                GradientStop { position: 0.5; color: Qt.alpha(FirePalette.amber, 0) }
                GradientStop { position: 1; color: Qt.alpha(FirePalette.amber, 0.06) }
            }
        }

        Column {
            id: sections

            x: Metrics.timerPanelPadding
            y: Metrics.timerPanelPadding + Metrics.space6
            width: parent.width - 2 * x

            TimerSection {
                anchors.horizontalCenter: parent.horizontalCenter
                panel: root.panel
            }

            SectionLine {}

            CaptureSection {
                width: parent.width
                focus: true
                panel: root.panel
            }

            SectionLine {}

            SparksSection {
                width: parent.width
                panel: root.panel
                onMenuRequested: (sparkID, text, item, x, y) => menu.openFor(sparkID, text, item.mapToItem(root, x, y))
            }
        }
    }

    SparkMenu {
        id: menu

        panel: root.panel
        backdrop: surface
    }

    // An outline, so that the dark panel is visible on a dark desktop.
    Rectangle {
        anchors.fill: parent
        radius: Metrics.cardRadius
        color: "transparent"
        border.color: FirePalette.white(0.10)
    }

    component SectionLine: Item {
        width: parent?.width ?? 0
        height: 2 * Metrics.space14 + 0.5

        Rectangle {
            y: Metrics.space14
            width: parent.width
            height: 0.5
            color: FirePalette.white(0.06)
        }
    }
}
