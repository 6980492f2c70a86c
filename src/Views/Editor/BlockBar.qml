pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The bar under the page with one chip for each kind of block. Its children are placed at its end.
Rectangle {
    id: root

    default property alias ends: ends.data

    signal addRequested(string kind)
    /// The focus moves backwards from the first chip.
    signal walkedBack

    function enter() {
        chips.itemAt(0).forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: Metrics.barHeight
    color: FirePalette.deepBackground

    Rectangle {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: 1
        color: FirePalette.barHairline
    }

    Row {
        anchors { left: parent.left; leftMargin: Metrics.space14; verticalCenter: parent.verticalCenter }
        spacing: Metrics.chipGap

        Repeater {
            id: chips

            model: BlockKinds.all

            IconChipButton {
                required property BlockKind modelData
                required property int index

                Keys.onBacktabPressed: event => index === 0 ? root.walkedBack() : event.accepted = false
                icon.name: modelData.icon
                tip: modelData.tip
                onTriggered: root.addRequested(modelData.name)
            }
        }
    }

    Row {
        id: ends

        anchors { right: parent.right; rightMargin: Metrics.space14; verticalCenter: parent.verticalCenter }
        spacing: Metrics.chipGap
    }
}
