import QtQuick
import Pelko

/// Lies under the page and receives the presses that the rows do not handle: beside the text of a block, or on a block
/// without text. A drag moves the block to the row under the pointer until it is released. The area belongs to no row,
/// so a drag does not end when rows are destroyed.
MouseArea {
    id: root

    required property BlockDrag blocks
    required property ListView list
    required property PageCaret caret

    readonly property bool dragging: blocks.draggingBlockID !== ""
    /// The distance of the pointer beyond the line at which the page starts to scroll; negative at the top.
    readonly property real pull: Math.max(0, mouseY - height + Metrics.dragEdge)
        - Math.max(0, Metrics.stripHeight + Metrics.dragEdge - mouseY)

    property BlockRow pressedRow: null
    property string taken
    property string entered
    property point start

    signal taking(BlockRow row, point position)
    signal carried(point position)
    signal scrollRequested(real distance)

    /// Returns the row at this height, or the nearest visible one.
    function rowAt(height: real) : BlockRow {
        const top = Math.max(list.contentY, list.originY)
        const end = Math.min(list.contentY + list.height, list.originY + list.contentHeight) - 1
        return list.itemAt(list.width / 2, Math.max(top, Math.min(list.contentY + height, end))) as BlockRow
    }

    function take(row: BlockRow, position: point) {
        pressedRow = row
        taken = row.blockID
        entered = taken
        start = position
        taking(row, position)
    }

    function pullTo(position: point) {
        if (!dragging && Math.hypot(position.x - start.x, position.y - start.y) > drag.threshold)
            blocks.begin(taken)
        carried(position)
        enterRow()
    }

    function enterRow() {
        const row = rowAt(mouseY)
        if (dragging && row && row.blockID !== entered) {
            entered = row.blockID
            blocks.enter(entered)
            list.forceLayout()
        }
    }

    function letGo() {
        taken = ""
        dragging ? blocks.drop() : click()
    }

    function click() {
        if (pressedRow?.grip.holds(root, Qt.point(mouseX, mouseY)))
            pressedRow.grip.triggered()
    }

    function giveUp() {
        taken = ""
        blocks.cancel()
    }

    cursorShape: dragging ? Qt.DragMoveCursor : Qt.ArrowCursor
    onCanceled: giveUp()
    onPositionChanged: mouse => { if (taken !== "") pullTo(Qt.point(mouse.x, mouse.y)) }
    onPressed: mouse => {
        pressedRow = null
        if (mouse.modifiers & Qt.ShiftModifier && caret.extendTo(Qt.point(mouse.x, mouse.y)))
            return
        const row = list.itemAt(list.width / 2, list.contentY + mouse.y) as BlockRow
        mouse.accepted = row !== null && list.count > 1
        if (mouse.accepted)
            take(row, Qt.point(mouse.x, mouse.y))
    }
    onReleased: letGo()

    FrameAnimation {
        running: root.dragging && root.pull !== 0
        onTriggered: {
            root.scrollRequested(root.pull * Metrics.dragScroll * frameTime)
            root.enterRow()
        }
    }

    Shortcut {
        enabled: root.dragging
        sequence: "Escape"
        onActivated: root.giveUp()
    }
}
