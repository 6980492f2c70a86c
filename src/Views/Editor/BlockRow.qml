import QtQuick
import Pelko

/// One block on the page: the editor of its kind, with the grip, the buttons and the context menu around it.
FocusScope {
    id: root

    required property int index
    required property textAddress address
    required property string kind
    required property string kindAbove
    required property bool canDelete
    /// Whether this is an image block with a picture.
    required property bool hasImage
    required property bool isFullWidth
    required property PageContext page
    /// The editor of the block, one of the children.
    required property BlockEditor block
    default property alias editors: body.data
    property real bodyWidth: page.measure

    readonly property string blockID: address.blockID

    /// A new row grows from 0 to 1, so that the rows below it move smoothly.
    property real growth: 1

    readonly property alias grip: grip
    /// The remaining distance of its movement to a new place.
    readonly property alias glide: slide.y
    readonly property BlockDrag drag: page.editor.drag
    readonly property bool lifted: drag.draggingBlockID === blockID
    readonly property bool pointedAt: hover.hovered && drag.draggingBlockID === "" && !page.quiet

    function owns(item: Item) : bool {
        return item !== null && (item === root || owns(item.parent))
    }

    /// Moves the focus through the controls of this block, then to the next block.
    function walk(forward: bool) {
        const next = (Window.activeFocusItem as Item).nextItemInFocusChain(forward)
        owns(next) ? next.forceActiveFocus(Qt.TabFocusReason) : page.walkedOut(index, forward)
    }

    function enter(forward: bool) {
        block.walkedTo = true
        const stop = forward || !controls.last ? nextItemInFocusChain(true) : controls.last
        stop.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    function openMenu() {
        page.menuRequested(root, block, Qt.point(0, block.height))
    }

    ListView.onAdd: arrival.start()
    transform: RowSlide {
        id: slide

        page: root.page
        place: root.y + body.y
    }
    implicitHeight: (body.y + body.height) * growth
    width: ListView.view?.width ?? 0
    onActiveFocusChanged: {
        activeFocus ? page.editor.focusGained(blockID) : page.editor.focusLost(blockID)
        if (!activeFocus)
            return block.walkedTo = false
        page.focusEntered(index)
        page.revealRequested()
    }

    ParallelAnimation {
        id: arrival

        NumberAnimation {
            duration: PelkoAnimation.micro.duration
            easing: PelkoAnimation.micro.curve
            from: 0
            property: "growth"
            target: root
            to: 1
        }

        NumberAnimation {
            duration: PelkoAnimation.smooth.duration
            from: 0
            property: "opacity"
            target: body
            to: 1
        }
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => root.page.menuRequested(root, root, point.position)
    }

    Rectangle {
        anchors { fill: body; margins: -Metrics.space12 }
        border { width: root.lifted ? 1 : 0; color: FirePalette.takenHairline }
        color: root.lifted ? FirePalette.takenWash : FirePalette.hoverWash
        opacity: root.pointedAt || root.lifted ? 1 : 0
        radius: Metrics.washRadius
        visible: opacity > 0 && (root.block.showsHover || root.lifted) && root.bodyWidth < root.width

        Behavior on opacity {
            NumberAnimation { duration: PelkoAnimation.micro.duration; easing: PelkoAnimation.micro.curve }
        }
    }

    FocusScope {
        id: body

        anchors.horizontalCenter: parent.horizontalCenter
        focus: true
        height: root.block.implicitHeight
        opacity: root.lifted ? Metrics.liftedOpacity : 1
        width: root.bodyWidth
        y: BlockKinds.gap(root.kindAbove, root.kind)

        Behavior on opacity {
            NumberAnimation { duration: Motion.reduced ? Motion.fade : 250; easing.type: Easing.InOutQuad }
        }
    }

    SelectionWash {
        anchors.fill: body
        block: root.block
        blockID: root.blockID
        caret: root.page.caret
        row: root
    }

    BlockGrip {
        id: grip

        opacity: root.pointedAt ? 1 : 0
        visible: root.page.editor.offersDelete && opacity > 0
        x: Math.max(Metrics.space8, body.x - width - Metrics.space12)
        y: body.y + root.block.firstLine - height / 2
        onTriggered: root.openMenu()

        Behavior on opacity {
            NumberAnimation { duration: PelkoAnimation.micro.duration; easing: PelkoAnimation.micro.curve }
        }
    }

    HoverControls {
        id: controls

        // Over text they straddle the edge, so that they cover no words; over a picture they are inside.
        anchors { right: body.right; rightMargin: root.hasImage ? Metrics.space8 : 0 }
        backdrop: root.hasImage ? body : null
        isBanner: root.isFullWidth
        offersBanner: root.hasImage
        offersDelete: root.canDelete
        pointedAt: root.pointedAt
        quiet: root.page.quiet
        reachable: root.activeFocus
        y: body.y + (root.hasImage ? Metrics.space8 : -height / 2)
        onBannerToggled: root.page.editor.toggleFullWidth(root.blockID)
        onDeleteRequested: root.page.editor.deleteBlock(root.blockID)
        onFocusDropped: body.forceActiveFocus(Qt.OtherFocusReason)
    }
}
