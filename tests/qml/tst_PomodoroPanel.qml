import QtQuick
import QtTest
import Pelko
import PelkoTest

TestCase {
    id: test

    property var bench

    name: "PomodoroPanel"

    Component {
        id: timers

        TimersFixture {}
    }

    function init() : void {
        bench = createTemporaryObject(timers, test)
    }

    function test_itsWindowIsAsHighAsItsContent() : void {
        const window = bench.toggleWindow()
        verify(window.visible)
        compare(window.width, 300)
        const empty = window.height
        bench.capture("one")
        bench.capture("two")
        bench.capture("three")
        tryVerify(() => window.height > empty)
    }

    function test_itKeepsItsWindow() : void {
        const window = bench.toggleWindow()
        bench.panel.typed("half a thought")
        compare(bench.toggleWindow(), window)
        verify(!window.visible)
        compare(bench.panel.quickNote, "")
        bench.advance(500)
        compare(bench.toggleWindow(), window)
        verify(window.visible)
    }

    function test_oneThatOpensAgainAtOnceIsNew() : void {
        const window = bench.toggleWindow()
        bench.toggleWindow()
        bench.advance(499)
        const next = bench.toggleWindow()
        verify(next !== window)
        verify(next.visible)
    }

    function test_theFieldGetsTheKeyboardEachTime() : void {
        const requests = createTemporaryObject(spy, test, { target: bench.panel })
        for (let opening = 1; opening <= 3; ++opening) {
            bench.toggleWindow()
            bench.advance(150)
            compare(requests.count, opening)
            bench.toggleWindow()
            bench.advance(500)
        }
    }

    Component {
        id: spy

        SignalSpy {
            signalName: "captureFocusRequested"
        }
    }
}
