pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// One page in the list: its symbol, its name, a line of details, its marks, and a delete button while it is selected
/// or under the pointer. Keys are handled by the search field, which keeps the focus.
Item {
    id: root

    required property int index
    required property string pageID
    /// The text of the whole row, for assistive technology.
    required property string name
    required property highlightedLine titleLine
    required property highlightedLine detailLine
    required property bool isOpen
    required property bool isSpark
    required property bool isPinned
    required property bool isArchived
    required property string space
    required property bool chosen
    readonly property bool pointedAt: pointer.hovered

    signal opened
    signal deleteRequested

    Accessible.name: name
    Accessible.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.onPressAction: opened()
    implicitHeight: space === "" ? Metrics.pageRowHeight : Metrics.hitRowHeight

    // Not the row itself: Qt 6.4 exposes every button as a button, whatever its role.
    PressableControl {
        id: face

        Accessible.ignored: true
        anchors.fill: parent
        focusPolicy: Qt.NoFocus
        name: root.name
        pressScale: 1
        onTriggered: root.opened()

        background: ChosenRowBackground {
            chosen: root.chosen
            pointedAt: root.pointedAt
        }
    }

    HoverHandler {
        id: pointer
    }

    PageRowSymbol {
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        isOpen: root.isOpen
        isSpark: root.isSpark
        width: Metrics.pageRowIndent
    }

    Column {
        anchors { left: parent.left; leftMargin: Metrics.pageRowIndent; right: ends.left; rightMargin: Metrics.space12 }
        anchors.verticalCenter: parent.verticalCenter

        HighlightedText {
            color: FirePalette.inkHeading
            font: Typography.listTitle
            height: Typography.listTitleLine
            line: root.titleLine
            highlightColor: FirePalette.hitInk
            highlightBackground: FirePalette.hitGround
            startsRight: LayoutMirroring.enabled
            width: parent.width
        }

        HighlightedText {
            color: FirePalette.inkMeta
            font: Typography.meta
            height: Typography.metaLine
            line: root.detailLine
            highlightColor: FirePalette.hitInk
            highlightBackground: FirePalette.hitGround
            startsRight: LayoutMirroring.enabled
            width: parent.width
        }
    }

    Row {
        id: ends

        anchors { right: parent.right; rightMargin: Metrics.space12; verticalCenter: parent.verticalCenter }
        spacing: Metrics.space12

        // Most rows have no marks; creating them only where needed lets the list open within one frame.
        Repeater {
            model: [...(root.isPinned ? ["pin.fill"] : []), ...(root.isArchived ? ["archivebox"] : [])]

            RowMark {
                required property string modelData

                symbol: modelData
            }
        }

        Repeater {
            model: root.chosen || root.pointedAt ? 1 : 0

            RowDeleteButton {
                anchors.verticalCenter: parent?.verticalCenter
                name: qsTr("Delete %1").arg(root.titleLine.text)
                onTriggered: root.deleteRequested()
            }
        }

        Repeater {
            model: root.space === "" ? 0 : 1

            SpaceCapsule {
                anchors.verticalCenter: parent?.verticalCenter
                space: root.space
            }
        }
    }
}
