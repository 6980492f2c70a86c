import QtQuick
import Pelko

/// What follows the pointer while a block is dragged: its picture on a card. The picture is taken when the
/// block is pressed, so the row itself may go out of sight, or away.
Item {
    id: root

    required property BlockDragArea area

    property var picture: null
    property point hold
    property size content

    function take(row: BlockRow, position: point) {
        const corner = row.block.mapToItem(root, 0, 0)
        content = Qt.size(row.block.width, row.block.height)
        hold = Qt.point(position.x - corner.x, Math.min(position.y - corner.y, card.height - 2 * Metrics.space12))
        picture = null
        row.block.grabToImage(result => root.picture = result)
    }

    function carry(position: point) {
        card.x = position.x - hold.x - card.contentX
        card.y = position.y - hold.y - card.contentY
    }

    visible: opacity > 0
    opacity: area.dragging ? 1 : 0

    Behavior on opacity {
        NumberAnimation { duration: PelkoAnimation.micro.duration; easing: PelkoAnimation.micro.curve }
    }

    Connections {
        function onTaking(row: BlockRow, position: point) {
            root.take(row, position)
        }

        function onCarried(position: point) {
            root.carry(position)
        }

        target: root.area
    }

    // The rows under the pointer have cursors of their own.
    HoverHandler {
        cursorShape: Qt.DragMoveCursor
    }

    Item {
        id: card

        readonly property real contentX: Metrics.space12 + Metrics.gripWidth
        readonly property real contentY: Metrics.space12

        height: Math.min(root.content.height, root.height / 2) + 2 * contentY
        width: root.content.width + contentX + Metrics.space12

        GlassSurface {
            anchors.fill: parent
            kind: Glass.menu
            radius: Metrics.fieldRadius
        }

        SymbolIcon {
            color: FirePalette.inkMeta
            name: "grip"
            size: Metrics.gripSymbol
            x: (parent.contentX - width) / 2
            y: parent.contentY + (Metrics.gripHeight - height) / 2
        }

        Item {
            clip: true
            height: parent.height - 2 * y
            width: root.content.width
            x: parent.contentX
            y: parent.contentY

            Image {
                height: root.content.height
                source: root.picture?.url ?? ""
                width: root.content.width
            }
        }
    }
}
