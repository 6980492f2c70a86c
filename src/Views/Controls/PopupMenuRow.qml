import QtQuick
import QtQuick.Templates as T
import Pelko

/// One entry of a menu: the symbol `icon.name`, its text, its shortcut, and a tick if it is checked. The pointer and
/// the arrow keys select it; a click, Return or Space trigger it and close the menu.
T.AbstractButton {
    id: row

    required property string name
    property string keys: ""
    property bool destroys: false
    /// The number of rows of this kind that share a line.
    property int perLine: 1
    /// Whether the row is checkable.
    property bool tickable: ticked
    property bool ticked: false
    required property PopupMenu menu

    readonly property color ink: destroys ? FirePalette.destructive : FirePalette.inkBody
    readonly property color symbolInk: destroys ? FirePalette.destructive : Qt.alpha(FirePalette.ink, 0.72)

    signal triggered()

    function take() : void {
        menu.close()
        triggered()
    }

    text: name
    width: (parent?.width ?? 0) / perLine
    implicitWidth: perLine * (10 + 14 + 10 + label.implicitWidth + (ticked ? 28 : 0)
                              + (keys === "" ? 0 : 28 + keyHint.implicitWidth) + 10)
    implicitHeight: Metrics.menuRowHeight
    height: implicitHeight
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    opacity: enabled ? 1 : 0.3
    onHoveredChanged: if (hovered) forceActiveFocus(Qt.MouseFocusReason)
    onClicked: take()
    Keys.onReturnPressed: take()
    Keys.onEnterPressed: take()

    Accessible.role: Accessible.MenuItem
    Accessible.name: name
    Accessible.checkable: tickable
    Accessible.checked: ticked
    Accessible.onPressAction: row.take()

    background: Rectangle {
        visible: row.activeFocus
        radius: Metrics.menuRowRadius
        border.color: FirePalette.chosenRowHairline
        gradient: Gradient {
            GradientStop { position: 0; color: FirePalette.chosenRowTop }
            GradientStop { position: 1; color: FirePalette.chosenRowFoot }
        }
    }

    SymbolIcon {
        anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
        name: row.icon.name
        size: 14
        color: row.symbolInk
    }

    Text {
        id: label

        anchors { left: parent.left; leftMargin: 34; verticalCenter: parent.verticalCenter }
        text: row.name
        textFormat: Text.PlainText
        font: Typography.menuRow
        color: row.ink
        Accessible.ignored: true
    }

    SymbolIcon {
        anchors.left: label.right
        anchors.leftMargin: Metrics.space16
        anchors.verticalCenter: parent.verticalCenter
        visible: row.ticked
        name: "checkmark"
        size: 11
        color: row.ink
    }

    Text {
        id: keyHint

        anchors.right: parent.right
        anchors.rightMargin: Metrics.space10
        anchors.verticalCenter: parent.verticalCenter
        text: row.keys
        textFormat: Text.PlainText
        font: Typography.menuKey
        color: FirePalette.white(row.activeFocus ? 0.75 : 0.50)
        Accessible.ignored: true
    }
}
