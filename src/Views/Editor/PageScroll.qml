import QtQuick
import Pelko

/// Scrolls a list by the wheel, by its bar and by gliding to a place.
Item {
    id: root

    required property ListView list

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
