pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko

Item {
    id: stage

    width: 200
    height: 300

    Flickable {
        id: view

        anchors.fill: parent
        contentHeight: 900
    }

    FrameAnimation {
        id: scrolling

        onTriggered: {
            view.contentY = 598
            view.contentY = 600
        }
    }

    PelkoScrollBar {
        id: bar

        readonly property Item handle: Array.from(children).find(child => child.radius !== undefined)

        anchors.right: parent.right
        height: parent.height
        flickable: view
    }

    TestCase {
        name: "PelkoScrollBar"
        when: windowShown

        function init() {
            Motion.reduced = true
            view.contentHeight = 900
            mouseMove(stage, 20, 20)
        }

        function cleanup() {
            view.contentY = 0
            Motion.reduced = false
        }

        function test_isNotThereWhenAllIsSeen() {
            view.contentHeight = 200
            verify(!bar.visible)
        }

        function test_appearsWithAMoveAndGoesASecondLater() {
            tryCompare(bar.handle, "opacity", 0, 3000)
            view.contentY = 300
            tryCompare(bar.handle, "opacity", 1)
            tryCompare(bar.handle, "opacity", 0, 3000)
        }

        function test_standsWhereTheViewStands() {
            view.contentY = 300
            compare(bar.handle.height, 100)
            compare(bar.handle.y, 100)
            view.contentY = 600
            compare(bar.handle.y, 200)
        }

        function test_widensUnderThePointer() {
            tryCompare(bar.handle, "width", 4)
            view.contentY = 10
            tryCompare(bar.handle, "opacity", 1)
            mouseMove(bar, 8, 20)
            tryCompare(bar.handle, "width", 6)
            mouseMove(stage, 20, 20)
            tryCompare(bar.handle, "width", 4)
        }

        function test_followsAViewThatScrollsInEachFrame() {
            Motion.reduced = false
            scrolling.start()
            tryVerify(() => Math.abs(bar.handle.y - 200) < 1)
            scrolling.stop()
        }

        function test_canBeDragged() {
            view.contentY = 1
            tryCompare(bar.handle, "opacity", 1)
            mousePress(bar, 8, 50)
            mouseMove(bar, 8, 150)
            mouseRelease(bar, 8, 150)
            fuzzyCompare(view.contentY, 301, 2)
        }
    }
}
