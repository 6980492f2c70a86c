pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The scrolling column of blocks.
FocusScope {
    id: root

    required property EditorViewModel editor
    /// Additional space above the page.
    property real air: 0
    property alias quiet: context.quiet

    readonly property alias atTop: list.atYBeginning

    /// Whether the current row is being set; the view then scrolls to it and back.
    property bool isSettingCurrent: false

    /// The focus leaves the page.
    signal walkedOut(bool forward)

    function focusText(address: textAddress, caret: int) {
        list.forceLayout()
        makeRow(address)
        list.currentRow?.block.takeFocus(address, caret)
    }

    /// Creates the row and the field of the text. Scrolls there if the row is too far away to exist.
    function makeRow(address: textAddress) {
        setCurrent(editor.rowOf(address.blockID))
        layOutCurrent()
        list.currentRow?.block.makeField(address)
    }

    /// Sets the current row without the view's own scrolling to the top of it.
    function setCurrent(row: int) {
        const place = list.contentY
        isSettingCurrent = true
        list.currentIndex = row
        list.contentY = place
        isSettingCurrent = false
    }

    /// Rows have a position only near the visible part; scrolling there creates the row.
    function layOutCurrent() {
        if (!list.itemAtIndex(list.currentIndex) && !scroll.gliding)
            bringIntoSight(list.currentIndex)
    }

    function scrollBy(distance: real) {
        scroll.scrollBy(distance)
        list.forceLayout()
    }

    function walkFrom(row: int, forward: bool) {
        setCurrent(forward ? row + 1 : row - 1)
        list.currentRow ? list.currentRow.enter(forward) : walkedOut(forward)
    }

    function enter(forward: bool) {
        walkFrom(forward ? -1 : list.count, forward)
    }

    /// Scrolls as little as needed to show the caret, or the control with the focus. Until something else scrolls,
    /// later changes of height keep it visible.
    function revealCaret() {
        scroll.followsCaret = true
        list.forceLayout()
        layOutCurrent()
        const item = Window.activeFocusItem as Item
        if (list.currentRow?.owns(item) && list.itemAtIndex(list.currentIndex))
            scroll.show(restingPlace(item, (item as WritingField)?.cursorRectangle ?? Qt.rect(0, 0, item.width, item.height)))
    }

    /// Returns the place in the list of a part of an item of the current row, as it will be when the row has stopped
    /// moving.
    function restingPlace(item: Item, part: rect) : rect {
        const place = list.contentItem.mapFromItem(item, part)
        return Qt.rect(place.x, place.y - list.currentRow.glide, place.width, place.height)
    }

    /// The first block is shown with the space above it.
    function bringIntoSight(row: int) {
        const from = list.contentY
        row === 0 ? list.positionViewAtBeginning() : list.positionViewAtIndex(row, ListView.Contain)
        // The view only estimates where the page begins, so do not stop there when scrolling down.
        const item = list.itemAtIndex(row)
        if (item?.y > from)
            list.contentY = Math.min(list.contentY, Math.max(from, item.y + item.height + Metrics.space24 - list.height))
    }

    function scrollTo(blockID: string) {
        const from = list.contentY
        bringIntoSight(editor.rowOf(blockID))
        scroll.glide(from, list.contentY)
    }

    /// A click under the last block, or on an empty page, gives the focus to the end of the page.
    function writeBelow(position: point) {
        const last = list.itemAtIndex(list.count - 1)
        if (list.count === 0 || last && list.mapToItem(last, position).y > last.height)
            editor.keys.writeBelow()
    }

    function openMenu(row: BlockRow, item: Item, position: point) {
        const corner = root.mapFromItem(item, position)
        menu.row = row
        if (menu.hasEntries)
            menu.popUp(corner.x, corner.y)
    }

    PageContext {
        id: context

        caret: pageCaret
        editor: root.editor
        images: ImageCache {}
        measure: Math.min(Metrics.measure, root.width - 2 * Metrics.pageMargin)
        viewHeight: list.height
        onFocusEntered: row => root.setCurrent(row)
        onMenuRequested: (row, item, position) => root.openMenu(row as BlockRow, item, position)
        onRevealRequested: reveal.start()
        onWalkedOut: (row, forward) => root.walkFrom(row, forward)
    }

    // While the view jumps, a long checklist must not destroy the row that is about to get the focus.
    Binding {
        property: "viewTop"
        restoreMode: Binding.RestoreNone
        target: context
        value: list.contentY
        when: !root.isSettingCurrent
    }

    PageCaret {
        id: pageCaret

        pageStep: list.height - Metrics.pageTop - Metrics.pageFoot
        editor: root.editor
        view: list
        onKeyPressed: reveal.start()
        onMenuRequested: list.currentRow?.openMenu()
        onRowNeeded: address => root.makeRow(address)
        onScrollRequested: distance => root.scrollBy(distance)
        onWalkRequested: forward => list.currentRow?.walk(forward)
        onShowRequested: item => scroll.show(list.contentItem.mapFromItem(item, 0, 0, item.width, item.height))
    }

    FrameAnimation {
        running: pageCaret.pull !== 0
        onTriggered: {
            root.scrollBy(pageCaret.pull * Metrics.dragScroll * frameTime)
            pageCaret.carryOn()
        }
    }

    // New and moved rows get their position with the next layout.
    Timer {
        id: reveal

        interval: 0
        onTriggered: root.revealCaret()
    }

    Connections {
        function onRowsAboutToBeMoved() {
            context.reorderBegan()
            reorder.start()
        }

        target: root.editor.blocks
    }

    // Runs after all rows of a change have been moved.
    Timer {
        id: reorder

        interval: 0
        onTriggered: {
            list.forceLayout()
            context.reorderEnded()
            ReadingOrder.arrange(list.contentItem)
        }
    }

    Connections {
        function onChildrenChanged() {
            reorder.start()
        }

        target: list.contentItem
    }

    Connections {
        function onFocusRequested(address: textAddress, caret: int) {
            root.focusText(address, caret)
        }

        function onScrollTargetChanged() {
            if (root.editor.scrollTarget !== "")
                root.scrollTo(root.editor.scrollTarget)
        }

        target: root.editor
    }

    TapHandler {
        onTapped: point => root.writeBelow(point.position)
    }

    BlockDragArea {
        id: dragArea

        anchors.fill: parent
        blocks: root.editor.drag
        caret: pageCaret
        list: list
        onScrollRequested: distance => scroll.scrollBy(distance)
    }

    ListView {
        id: list

        readonly property BlockRow currentRow: currentItem as BlockRow

        Accessible.name: qsTr("Page")
        Accessible.role: Accessible.Document
        anchors.fill: parent
        bottomMargin: Metrics.pageFoot
        boundsBehavior: Flickable.StopAtBounds
        // With a cache, rows are cancelled too late when the model shrinks, and Qt warns.
        cacheBuffer: 0
        displayMarginBeginning: 400
        displayMarginEnd: 400
        focus: true
        highlightFollowsCurrentItem: false
        interactive: false
        keyNavigationEnabled: false
        model: root.editor.blocks
        topMargin: root.editor.firstBlockIsBanner ? Metrics.bannerTop : Metrics.pageTop + root.air

        delegate: BlockRowChooser {
            page: context
        }
    }

    PageScroll {
        id: scroll

        list: list
        onArrived: reveal.start()
        onCaretMayHaveMoved: reveal.start()
        onEnded: root.editor.scrolled()
    }

    LiftedBlock {
        anchors.fill: parent
        area: dragArea
    }

    GrowthNote {
        anchors { bottom: parent.bottom; bottomMargin: Metrics.space12; horizontalCenter: parent.horizontalCenter }
        backdrop: list
        text: context.growingText
    }

    PelkoScrollBar {
        anchors { bottom: parent.bottom; right: parent.right; top: parent.top }
        flickable: list
        visible: needed && !root.quiet
        onMoved: scroll.followsCaret = false
    }

    BlockMenu {
        id: menu

        LayoutMirroring.childrenInherit: true
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
        anchors.fill: parent
        backdrop: list
        offersDelete: root.editor.offersDelete
        onDeleteRequested: blockID => root.editor.deleteBlock(blockID)
        onFullWidthToggled: blockID => root.editor.toggleFullWidth(blockID)
    }
}
