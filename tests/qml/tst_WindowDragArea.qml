import QtQuick
import QtQuick.Window
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

    Component {
        id: windowComponent

        Window {
            property alias strip: strip
            property alias ground: ground

            height: 200
            visible: true
            width: 200

            WindowDragArea { id: ground; anchors.fill: parent }
            WindowDragArea { id: strip; height: 40; maximises: true; width: parent.width }
        }
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

    function test_aDoubleClickFillsTheScreenAndUndoesIt() : void {
        const window = createTemporaryObject(windowComponent, test)
        tryCompare(window, "active", true)
        waitForRendering(window.strip)
        mouseDoubleClickSequence(window.strip, 100, 20)
        compare(window.visibility, Window.Maximized)
        mouseDoubleClickSequence(window.strip, 100, 20)
        compare(window.visibility, Window.Windowed)
        mouseDoubleClickSequence(window.ground, 100, 150)
        compare(window.visibility, Window.Windowed)
    }

    function test_smallPointerMovementDoesNotMoveTheWindow() : void {
        mousePress(area, 100, 100)
        mouseMove(area, 103, 102)
        compare(dragged.count, 0)
        mouseRelease(area, 103, 102)
    }
}
