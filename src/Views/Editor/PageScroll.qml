import QtQuick
import Pelko

/// Scrolls a list by wheel, by scroll bar and by animated movements to a place.
Item {
    id: root

    required property ListView list

    property real margin: 0
    /// Whether the caret must stay visible.
    property bool followsCaret: false

    readonly property alias gliding: animation.running
    readonly property real currentY: list.currentItem?.y ?? 0

    /// The movement has ended, at its place or because something else scrolls.
    signal ended
    /// The movement has ended at its place.
    signal arrived
    /// The height of the page or of the view has changed while the caret must stay visible.
    signal caretMayHaveMoved

    /// Returns the position of the list, or the one it moves to.
    function goal() : real {
        return animation.running ? animation.to : list.contentY
    }

    function glide(from: real, to: real) {
        animation.from = from
        animation.to = to
        animation.restart()
    }

    function jump(to: real) {
        animation.stop()
        list.contentY = to
    }

    /// Scrolls as little as needed to show the place; to its top if it is higher than the view.
    function show(place: rect) {
        const above = place.y - Metrics.pageTop - goal()
        const below = Math.max(place.y + place.height + Metrics.space24 - goal() - list.height, 0)
        if (Math.min(above, below) !== 0)
            jump(Math.max(goal() + Math.min(above, below), list.originY - list.topMargin))
    }

    function follow() {
        if (followsCaret && !gliding)
            caretMayHaveMoved()
    }

    function scrollBy(distance: real) {
        followsCaret = false
        jump(list.contentY + distance)
        list.returnToBounds()
    }

    /// A page that is scrolled to its start stays there when the start moves.
    function followBeginning() {
        const stood = list.contentY < list.originY - margin + 1
        margin = list.topMargin
        list.contentY = stood ? list.originY - margin : Math.max(list.contentY, list.originY - margin)
    }

    anchors.fill: list
    Component.onCompleted: followBeginning()
    onCurrentYChanged: follow()

    Connections {
        function onContentHeightChanged() {
            root.follow()
        }

        function onHeightChanged() {
            root.follow()
        }

        function onTopMarginChanged() {
            root.followBeginning()
            root.follow()
        }

        target: root.list
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => root.scrollBy(-(event.pixelDelta.y || event.angleDelta.y * Metrics.wheelStep / 120))
    }

    NumberAnimation {
        id: animation

        duration: PelkoAnimation.smooth.duration
        easing: PelkoAnimation.smooth.curve
        property: "contentY"
        target: root.list
        onFinished: root.arrived()
        onStopped: root.ended()
    }
}
