import QtQuick
import Pelko

/// The dragged block: a picture of it on a card, which follows the pointer and moves to its place after the drop. The
/// picture is taken at the press, so the row itself may be destroyed during the drag.
Item {
    id: root

    required property BlockDragArea area

    property url picture
    property size content
    property point hold

    function take(row: BlockRow, position: point) {
        const corner = row.block.mapToItem(root, 0, 0)
        content = Qt.size(row.block.width, row.block.height)
        hold = Qt.point(position.x - corner.x, Math.min(position.y - corner.y, view.height))
        picture = ""
        row.block.grabToImage(result => root.picture = result.url, pixels(content))
    }

    function pixels(size: size) : size {
        const ratio = Math.min(Screen.devicePixelRatio, Metrics.liftedPixels / size.height)
        return Qt.size(Math.ceil(size.width * ratio), Math.ceil(size.height * ratio))
    }

    function carry(position: point) {
        landing.stop()
        card.x = position.x - hold.x - view.x
        card.y = position.y - hold.y - view.y
    }

    function land() {
        const row = area.pressedRow
        area.list.forceLayout()
        const corner = row ? row.block.mapToItem(card, -view.x, -view.y - row.glide) : Qt.point(0, 0)
        landing.place = Qt.point(card.x + corner.x, card.y + corner.y)
        landing.start()
    }

    visible: area.dragging || landing.running

    Connections {
        function onCarried(position: point) {
            root.carry(position)
        }

        function onDraggingChanged() {
            root.area.dragging ? card.opacity = 1 : root.land()
        }

        function onTaking(row: BlockRow, position: point) {
            root.take(row, position)
        }

        target: root.area
    }

    // The rows under the pointer have other cursors.
    HoverHandler {
        cursorShape: Qt.DragMoveCursor
        enabled: root.area.dragging
    }

    Item {
        id: card

        height: view.height + 2 * view.y
        width: view.width + view.x + Metrics.space12

        GlassSurface {
            anchors.fill: parent
            kind: Glass.menu
            radius: Metrics.fieldRadius
        }

        SymbolIcon {
            color: FirePalette.inkMeta
            name: "grip"
            size: Metrics.gripSymbol
            x: (view.x - width) / 2
            y: view.y + (Metrics.gripHeight - height) / 2
        }

        Item {
            id: view

            clip: true
            height: Math.min(root.content.height, root.height / 2)
            width: root.content.width
            x: Metrics.space12 + Metrics.gripWidth
            y: Metrics.space12

            Image {
                height: root.content.height
                source: root.picture
                width: root.content.width
            }
        }
    }

    ParallelAnimation {
        id: landing

        property point place

        NumberAnimation {
            duration: Motion.reduced ? 0 : PelkoAnimation.smooth.duration
            easing: PelkoAnimation.smooth.curve
            property: "x"
            target: card
            to: landing.place.x
        }

        NumberAnimation {
            duration: Motion.reduced ? 0 : PelkoAnimation.smooth.duration
            easing: PelkoAnimation.smooth.curve
            property: "y"
            target: card
            to: landing.place.y
        }

        NumberAnimation {
            duration: Motion.reduced ? Motion.fade : PelkoAnimation.smooth.duration
            easing.type: Easing.InCubic
            property: "opacity"
            target: card
            to: 0
        }
    }
}
