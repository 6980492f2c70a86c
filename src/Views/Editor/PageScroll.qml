import QtQuick
import Pelko

/// Scrolls a list by the wheel, by its bar and by gliding to a place.
Item {
    id: root

    required property ListView list

    property real margin: 0

    signal finished

    function glide(from: real, to: real) {
        animation.from = from
        animation.to = to
        animation.restart()
    }

    function scrollBy(distance: real) {
        animation.stop()
        list.contentY += distance
        list.returnToBounds()
    }

    /// A page that stands at its beginning goes with it.
    function followBeginning() {
        const stood = list.contentY < list.originY - margin + 1
        margin = list.topMargin
        list.contentY = stood ? list.originY - margin : Math.max(list.contentY, list.originY - margin)
    }

    anchors.fill: list

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
        onFinished: root.finished()
    }
}
