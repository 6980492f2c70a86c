pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// A glass menu over its whole parent, inside of which it stays. Its children are the rows. `popUp` opens it at a point
/// of its parent or below an item; it closes by itself. A menu that is too high scrolls.
ModalLayer {
    id: menu

    required property string name
    property Item backdrop: null
    property int minimumWidth: 180
    default property alias rows: column.data
    readonly property alias card: card

    /// The corner at which it opens: top left, or top right in right-to-left layouts.
    property point anchor: Qt.point(0, 0)
    readonly property real edge: Metrics.space8

    readonly property real widestRow: Math.ceil(Array.from(column.children).reduce(
        (widest, row) => Math.max(widest, row.implicitWidth), minimumWidth - 12))

    function popUp(x: real, y: real) : void {
        anchor = Qt.point(x, y)
        open = true
    }

    function popUpBelow(item: Item) : void {
        const corner = item.mapToItem(parent, LayoutMirroring.enabled ? item.width : 0, item.height + Metrics.space6)
        popUp(corner.x, corner.y)
    }

    function close() : void {
        open = false
    }

    function choices() : var {
        return Array.from(column.children).filter(row => row instanceof PopupMenuRow && row.visible && row.enabled)
    }

    function choose(index: int) : void {
        const rows = choices()
        if (rows.length > 0)
            take(rows[(index + rows.length) % rows.length])
    }

    /// Selects the row on the same line.
    function chooseBeside(step: int) : void {
        const row = choices()[chosen()]
        const next = choices()[chosen() + step]
        if (row && next?.y === row.y)
            take(next)
    }

    function take(row: Item) : void {
        row.forceActiveFocus(Qt.TabFocusReason)
        view.contentY = Math.max(row.y + row.height - view.height, Math.min(view.contentY, row.y))
    }

    function chosen() : int {
        return choices().findIndex(row => row.activeFocus)
    }

    motion: PelkoAnimation.micro
    // A menu opens without a current row.
    onOpened: {
        view.contentY = 0
        card.forceActiveFocus(Qt.PopupFocusReason)
    }
    onEscaped: close()
    onClickedBeside: close()
    Keys.onDownPressed: choose(chosen() + 1)
    Keys.onLeftPressed: chooseBeside(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: chooseBeside(LayoutMirroring.enabled ? -1 : 1)
    Keys.onUpPressed: choose(chosen() < 0 ? -1 : chosen() - 1)
    Keys.onTabPressed: choose(chosen() + 1)
    Keys.onBacktabPressed: choose(chosen() < 0 ? -1 : chosen() - 1)
    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_Home || event.key === Qt.Key_PageUp) choose(0)
        if (event.key === Qt.Key_End || event.key === Qt.Key_PageDown) choose(-1)
    }

    GlassSurface {
        id: card

        readonly property bool opensLeftwards: menu.LayoutMirroring.enabled
        readonly property real wantedX: menu.anchor.x - (opensLeftwards ? width : 0)

        x: Math.round(Math.max(menu.edge, Math.min(wantedX, menu.width - width - menu.edge)))
        y: Math.round(Math.max(menu.edge, Math.min(menu.anchor.y, menu.height - height - menu.edge)))
        width: menu.widestRow + 12
        height: Math.min(column.height + 12, menu.height - 2 * menu.edge)
        radius: Metrics.menuRadius
        kind: Glass.menu
        backdrop: menu.backdrop
        opacity: Math.max(0, Math.min(1, menu.shown))
        scale: Motion.reduced ? 1 : 0.97 + 0.03 * menu.shown
        transformOrigin: opensLeftwards ? Item.TopRight : Item.TopLeft

        Accessible.role: Accessible.PopupMenu
        Accessible.name: menu.name

        MouseArea { anchors.fill: parent }

        Flickable {
            id: view

            x: 6
            y: 6
            width: menu.widestRow
            height: card.height - 12
            boundsBehavior: Flickable.StopAtBounds
            clip: contentHeight > height
            contentHeight: column.height

            Flow {
                id: column

                width: menu.widestRow
            }
        }

        PelkoScrollBar {
            anchors { right: parent.right; top: view.top; bottom: view.bottom }
            flickable: view
        }
    }
}
