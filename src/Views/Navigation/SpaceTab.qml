import QtQuick
import QtQuick.Templates as T
import Pelko

/// The tab of a space: its symbol, its name, its five places, and its shortcut. A TabButton, because Qt 6.4 exposes
/// other controls as buttons.
T.TabButton {
    id: root

    required property string space
    required property string title
    required property string symbol
    required property int pages
    required property bool isCurrent
    required property string keys

    signal triggered

    Accessible.description: qsTr("%n page(s), five places", "", pages)
    Accessible.name: title
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: isCurrent
    Accessible.onPressAction: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()
    checked: isCurrent
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    implicitHeight: Metrics.spaceTabHeight
    scale: 1 - 0.02 * press.value
    text: title
    onClicked: triggered()

    SpringFollower {
        id: press

        dampingFraction: 0.55
        goal: root.down ? 1 : 0
        instant: Motion.reduced
        response: 0.18
    }

    ControlFocusRing {
        id: ring

        control: root
        controlRadius: Metrics.menuRowRadius
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            color: FirePalette.rowHover
            opacity: !root.isCurrent && (root.hovered || ring.shown) ? 1 : 0
            radius: Metrics.menuRowRadius

            Behavior on opacity {
                NumberAnimation { duration: Motion.reduced ? Motion.fade : PelkoAnimation.micro.duration }
            }
        }

        Rectangle {
            anchors.fill: parent
            border.color: FirePalette.white(0.11)
            opacity: root.isCurrent ? 1 : 0
            radius: Metrics.menuRowRadius

            gradient: Gradient {
                GradientStop { position: 0; color: FirePalette.white(0.12) }
                GradientStop { position: 1; color: FirePalette.white(0.08) }
            }

            Behavior on opacity {
                NumberAnimation { duration: Motion.reduced ? Motion.fade : PelkoAnimation.micro.duration }
            }
        }
    }

    SymbolIcon {
        id: icon

        anchors { left: parent.left; leftMargin: Metrics.space14; verticalCenter: parent.verticalCenter }
        color: root.isCurrent ? FirePalette.amberSoft : Qt.alpha(FirePalette.ink, 0.62)
        name: root.symbol
        size: Metrics.spaceSymbol
    }

    Column {
        anchors { left: icon.right; leftMargin: Metrics.space10; verticalCenter: parent.verticalCenter }
        spacing: Metrics.space4

        Text {
            Accessible.ignored: true
            color: Qt.alpha(FirePalette.ink, root.isCurrent ? 0.96 : 0.80)
            font: Typography.button
            renderType: Text.NativeRendering
            text: root.title
            textFormat: Text.PlainText
        }

        CapacityDots {
            taken: root.pages
        }
    }

    Text {
        Accessible.ignored: true
        anchors { right: parent.right; rightMargin: Metrics.space12; verticalCenter: parent.verticalCenter }
        color: FirePalette.inkMeta
        font: Typography.menuKey
        renderType: Text.NativeRendering
        text: root.keys
    }
}
