pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 400
    height: 200

    Component {
        id: stand

        Item {
            readonly property alias bench: bench
            readonly property alias button: button

            width: 400
            height: 200

            FlameNavButton {
                id: button

                anchors.centerIn: parent
                flow: bench.timers.flow
            }

            TimersFixture { id: bench }
        }
    }

    TestCase {
        name: "FlameNavButton"
        when: windowShown

        property var bench
        property var button

        function init() {
            const made = createTemporaryObject(stand, stage)
            bench = made.bench
            button = made.button
            mouseMove(stage, 1, 1)
        }

        function test_springsOfHoverPressAndActivity() {
            const springs = Array.from(button.resources).filter(item => item instanceof SpringFollower)
            compare(springs.map(spring => spring.response + " " + spring.dampingFraction),
                    ["0.35 0.7", "0.2 0.5", "0.4 0.75"])
        }

        function test_restsAsPlainFlow() {
            compare(button.name, "Flow")
            compare(button.Accessible.name, "Flow")
            compare(button.Accessible.role, Accessible.Button)
            compare(button.scale, 1)
        }

        function test_aClickStartsTheRun() {
            mouseClick(button)
            verify(bench.timers.flow.isRunning)
            compare(button.name, "Flow 5:00")
            bench.advance(79000)
            compare(button.name, "Flow 3:41")
        }

        function test_aClickDuringTheRunChangesNothing() {
            mouseClick(button)
            bench.advance(79500)
            mouseClick(button)
            bench.advance(500)
            compare(button.name, "Flow 3:40")
        }

        function test_aRunStoppedHalfWayKeepsItsTime() {
            mouseClick(button)
            bench.advance(1000)
            bench.stopFlow()
            compare(button.name, "Flow 4:59")
        }

        function test_aRunStoppedAtOnceIsPlainFlowAgain() {
            mouseClick(button)
            bench.stopFlow()
            compare(button.name, "Flow")
        }

        function test_aFinishedRunShowsZeroUntilTheNext() {
            mouseClick(button)
            bench.advance(301000)
            verify(!bench.timers.flow.isRunning)
            compare(button.name, "Flow 0:00")
            mouseClick(button)
            compare(button.name, "Flow 5:00")
        }

        function test_growsAndWidensWhileActive() {
            const narrow = button.width
            mouseClick(button)
            mouseMove(stage, 1, 1)
            tryVerify(() => button.scale > 1 && button.width > narrow + 20)
        }

        function test_growsUnderThePointer() {
            mouseMove(button, 5, 5)
            tryVerify(() => button.scale > 1)
            mouseMove(stage, 1, 1)
            tryCompare(button, "scale", 1)
        }

        function test_startsByKeyboard() {
            button.forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            verify(bench.timers.flow.isRunning)
        }

        function test_aReleaseOutsideStartsNothing() {
            mousePress(button)
            mouseMove(stage, 1, 1)
            mouseRelease(stage, 1, 1)
            verify(!button.down)
            verify(!bench.timers.flow.isRunning)
        }
    }
}
