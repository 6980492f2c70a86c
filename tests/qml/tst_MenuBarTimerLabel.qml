pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 400
    height: 100

    Component {
        id: stand

        Item {
            readonly property alias bench: bench
            readonly property alias label: label

            anchors.fill: parent

            MenuBarTimerLabel {
                id: label

                x: 50
                y: 10
                timers: bench.timers
            }

            TimersFixture { id: bench }
        }
    }

    Component {
        id: strip

        Item {
            readonly property alias bench: bench
            readonly property alias strip: topStrip

            anchors.fill: parent

            TitleBar { id: topStrip; width: parent.width; timers: bench.timers }
            TimersFixture { id: bench }
        }
    }

    SignalSpy { id: opened; signalName: "panelOpened" }
    SignalSpy { id: ended; signalName: "clickedWhileCovered" }

    TestCase {
        name: "MenuBarTimerLabel"
        when: windowShown

        property var bench
        property var label

        function init() {
            const made = createTemporaryObject(stand, stage)
            bench = made.bench
            label = made.label
            mouseMove(stage, 1, 1)
        }

        function labelIn(item) {
            return ItemTree.all(item).find(item => item instanceof MenuBarTimerLabel) ?? null
        }

        function test_atLaunchItIsADimFlame() {
            compare(label.name, "Timer")
            compare(label.flameOpacity, 0.8)
            verify(!label.pulse)
        }

        function test_whileItRunsItPulsesAndTellsTheTime() {
            const narrow = label.width
            bench.panel.toggleTimer()
            compare(label.name, "Timer, 25:00 of focus left")
            verify(label.pulse)
            tryVerify(() => label.width > narrow + 20)
            tryVerify(() => label.flameOpacity < 0.7)
            tryVerify(() => label.flameOpacity > 0.9)
        }

        function test_pausedItIsADimFlameAgain() {
            const narrow = label.width
            bench.panel.toggleTimer()
            bench.advance(746000)
            compare(label.name, "Timer, 12:34 of focus left")
            bench.panel.toggleTimer()
            compare(label.name, "Timer")
            tryCompare(label, "width", narrow)
            tryCompare(label, "flameOpacity", 0.8)
            bench.panel.toggleTimer()
            compare(label.name, "Timer, 12:34 of focus left")
            verify(label.pulse)
        }

        function test_aClickOpensThePanelBelow() {
            opened.target = bench.timers
            mouseClick(label)
            compare(opened.count, 1)
            const corner = label.mapToGlobal(0, 0)
            compare(opened.signalArguments[0][0], Qt.rect(corner.x, corner.y, label.width, label.height))
            verify(bench.timers.isPanelOpen)
        }

        function test_sitsInTheStripOnlyWithoutATray() {
            const made = createTemporaryObject(strip, stage)
            verify(labelIn(made).visible)
            made.bench.setInTray(true)
            verify(!labelIn(made).visible)
            made.bench.panel.toggleTimer()
            made.bench.setInTray(false)
            verify(labelIn(made).visible)
            verify(labelIn(made).pulse)
        }

        function test_staysToBeSeenInFocusModeWhileTheTimerRuns() {
            const made = createTemporaryObject(strip, stage)
            mouseMove(stage, 200, stage.height - 1) // the strip comes back under the pointer
            made.strip.focusFade.focused = true
            tryVerify(() => !labelIn(made).visible)
            made.bench.panel.toggleTimer()
            verify(labelIn(made).visible)
            verify(labelIn(made).opacity > 0.5)
        }

        function test_aClickUnderTheNavigationEndsThat() {
            const made = createTemporaryObject(strip, stage)
            made.strip.covered = true
            ended.target = made.strip
            ended.clear()
            mouseClick(labelIn(made))
            mouseClick(made.strip.menuButton)
            compare(ended.count, 2)
            verify(!made.bench.timers.isPanelOpen)
        }
    }
}
