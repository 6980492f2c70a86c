import QtQuick
import QtTest
import Pelko

TestCase {
    id: test

    name: "WindowDragArea"
    width: 200
    height: 200
    visible: true
    when: windowShown

    WindowDragArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
    }

    SignalSpy {
        id: dragged

        target: area
        signalName: "dragged"
    }

    function init() : void {
        mouseMove(area, 10, 10)
        dragged.clear()
    }

    function test_aPointerThatPassesOverDoesNotMoveTheWindow() : void {
        mouseMove(area, 100, 100)
        mouseMove(area, 180, 40)
        compare(dragged.count, 0)
    }

    function test_pulledWithTheButtonDownItMovesTheWindow() : void {
        mousePress(area, 100, 100)
        mouseMove(area, 120, 100)
        verify(dragged.count > 0)
        mouseRelease(area, 120, 100)
    }

    function test_smallPointerMovementDoesNotMoveTheWindow() : void {
        mousePress(area, 100, 100)
        mouseMove(area, 103, 102)
        compare(dragged.count, 0)
        mouseRelease(area, 103, 102)
    }
}
