import QtQuick
import Pelko

/// A thin scroll bar that is hidden a second after the last movement. It is wider under the pointer, where it can be
/// dragged. Position and length are animated, because a list with rows of different heights corrects its estimated
/// length often.
Item {
    id: bar

    required property Flickable flickable
    property int thickness: 4

    readonly property real ratio: Math.min(1, flickable.visibleArea.heightRatio)
    readonly property real handleHeight: Math.max(32, height * ratio)
    readonly property real room: height - handleHeight
    readonly property real position: flickable.visibleArea.yPosition / Math.max(0.0001, 1 - ratio)
    readonly property bool needed: ratio < 0.999
    property bool recentlyMoved: false

    /// The bar was dragged.
    signal moved

    width: 12
    visible: needed
    onPositionChanged: { recentlyMoved = true; rest.restart() }
    Accessible.ignored: true

    Timer {
        id: rest

        interval: 1000
        onTriggered: bar.recentlyMoved = false
    }

    SpringFollower {
        id: top

        dampingFraction: 1
        goal: Math.max(0, Math.min(bar.room, bar.room * bar.position))
        instant: area.pressed || Motion.reduced
        response: 0.09
    }

    SpringFollower {
        id: length

        dampingFraction: 1
        goal: bar.handleHeight
        instant: Motion.reduced
        response: 0.16
    }

    Rectangle {
        id: handle

        anchors { right: parent.right; rightMargin: 3 }
        y: top.value
        width: area.containsMouse || area.pressed ? 6 : bar.thickness
        height: length.value
        radius: width / 2
        color: FirePalette.scrollBar
        opacity: bar.recentlyMoved || area.containsMouse || area.pressed ? 1 : 0

        Behavior on width {
            enabled: !Motion.reduced
            NumberAnimation { duration: PelkoAnimation.micro.duration; easing: PelkoAnimation.micro.curve }
        }
        Behavior on opacity {
            NumberAnimation { duration: Motion.fade }
        }
    }

    MouseArea {
        id: area

        property real grabbedAt: 0

        function scrollTo(y: real) : void {
            const part = Math.max(0, Math.min(1, (y - grabbedAt) / Math.max(1, bar.room)))
            bar.moved()
            bar.flickable.contentY = bar.flickable.originY
                + part * (bar.flickable.contentHeight - bar.flickable.height)
        }

        anchors.fill: parent
        enabled: handle.opacity > 0 || containsMouse
        hoverEnabled: true
        preventStealing: true
        onPressed: mouse => {
            const onHandle = mouse.y >= handle.y && mouse.y <= handle.y + handle.height
            grabbedAt = onHandle ? mouse.y - handle.y : handle.height / 2
            scrollTo(mouse.y)
        }
        onPositionChanged: mouse => { if (pressed) scrollTo(mouse.y) }
    }
}
