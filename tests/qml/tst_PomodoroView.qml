pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 320
    height: 700

    Component {
        id: stand

        FocusScope {
            readonly property alias bench: bench
            readonly property alias view: view

            anchors.fill: parent
            focus: true

            PomodoroView {
                id: view

                width: implicitWidth
                height: implicitHeight
                focus: true
                panel: bench.panel
            }

            TimersFixture { id: bench }
        }
    }

    TestCase {
        name: "PomodoroView"
        when: windowShown

        property var bench
        property var view

        function make(sparks) {
            const made = createTemporaryObject(stand, stage)
            bench = made.bench
            view = made.view
            for (const text of sparks ?? [])
                bench.capture(text)
            waitForRendering(view)
        }

        function init() {
            mouseMove(stage, 1, 1)
        }

        function all(item, test) {
            return ItemTree.all(item).filter(item => item.visible && test(item))
        }

        function named(name) {
            return all(view, item => item.Accessible.name === name && item.name === name)[0] ?? null
        }

        function reading(text) {
            return all(view, item => item.text === text && item.font !== undefined)[0] ?? null
        }

        function cards() {
            return all(view, item => item.sparkID !== undefined && item.isNew !== undefined)
        }

        function field() {
            return all(view, item => item instanceof TextInput)[0]
        }

        function settle() {
            bench.advance(150)
            tryVerify(() => field().activeFocus)
        }

        function test_isThreeHundredWide() {
            make()
            compare(view.implicitWidth, 300)
        }

        function test_theFieldGetsTheKeyboardAfterAMoment() {
            make()
            bench.panel.shown()
            view.forceActiveFocus()
            settle()
        }

        function test_oneButtonStartsAndPauses() {
            make()
            const start = named("Start")
            compare(start.icon.name, "play.fill")
            mouseClick(start)
            verify(bench.panel.isRunning)
            compare(start.name, "Pause")
            compare(start.icon.name, "pause.fill")
            bench.advance(498000)
            verify(all(view, item => item.Accessible.name === "16:42")[0])
            mouseClick(start)
            verify(!bench.panel.isRunning)
            mouseClick(named("Reset"))
            compare(bench.panel.displayTime, "25:00")
        }

        function test_theRingFollowsInASecond() {
            make()
            const ring = all(view, item => item instanceof ProgressRing)[0]
            compare(ring.progress, 0)
            mouseClick(named("Start"))
            const began = Date.now()
            bench.advance(750000)
            compare(bench.panel.progress, 0.5)
            let least = 1
            ring.progressChanged.connect(() => least = Math.min(least, ring.progress))
            tryCompare(ring, "progress", 0.5)
            verify(Date.now() - began >= 950)
            verify(least < 0.25, least)
        }

        function test_dotsAndFigureCountTheSessions_data() {
            return [
                { tag: "none", sessions: 0, dots: 0, more: "" },
                { tag: "four", sessions: 4, dots: 4, more: "" },
                { tag: "seven", sessions: 7, dots: 4, more: "+3" }
            ]
        }

        function test_dotsAndFigureCountTheSessions(row) {
            make()
            bench.completeSessions(row.sessions)
            waitForRendering(view)
            const dots = all(view, item => item instanceof Rectangle && item.width === 4 && item.height === 4)
            compare(dots.length, row.dots)
            compare(reading("+3") !== null, row.more === "+3")
        }

        function test_thePhaseIsNamed() {
            make()
            verify(reading("FOCUS"))
            bench.panel.toggleTimer()
            bench.advance(1501000)
            verify(reading("BREAK"))
        }

        function test_returnCatchesTheSpark() {
            make()
            view.forceActiveFocus()
            for (const letter of "a map")
                keyClick(letter)
            compare(bench.panel.quickNote, "a map")
            keyClick(Qt.Key_Return)
            compare(bench.newestSpark(), "a map")
            compare(field().text, "")
            tryCompare(cards(), "length", 1)
            verify(cards()[0].isNew)
            keyClick("b")
            compare(field().text, "b")
        }

        function test_sendCatchesTheSparkAndTheFieldGetsTheKeyboardBack() {
            make()
            view.forceActiveFocus()
            const send = named("Send")
            verify(!send.enabled)
            compare(send.opacity, 0.3)
            keyClick("x")
            verify(send.enabled)
            compare(send.opacity, 1)
            mouseClick(send)
            compare(bench.newestSpark(), "x")
            bench.advance(50)
            verify(field().activeFocus)
        }

        function test_blankIsNotSent() {
            make()
            view.forceActiveFocus()
            for (let i = 0; i < 3; ++i)
                keyClick(Qt.Key_Space)
            verify(!named("Send").enabled)
            keyClick(Qt.Key_Return)
            compare(field().text, "   ")
            compare(bench.sparkCount(), 0)
        }

        function test_sixSparksAreCountedAndFourShown() {
            make(["1", "2", "3", "4", "5", "6"])
            compare(cards().map(card => card.text), ["6", "5", "4", "3"])
            verify(reading("RECENT"))
            verify(all(view, item => item.text === "6" && item.sparkID === undefined)[0])
        }

        function test_withoutSparksThereIsAHint() {
            make()
            verify(reading("Sparks you capture appear here."))
            bench.capture("one")
            verify(!reading("Sparks you capture appear here."))
        }

        function test_anEmptySparkIsADash() {
            make()
            bench.addEmptySpark()
            verify(reading("—"))
            compare(cards()[0].Accessible.name, "Empty spark")
        }

        function test_copyByPointer() {
            make(["old", "copy me"])
            mouseClick(cards()[0], 60, 10, Qt.RightButton)
            mouseClick(named("Copy"))
            compare(bench.pasted(), "copy me")
            compare(bench.sparkCount(), 2)
        }

        function test_deleteByKeyboard() {
            make(["stays", "goes"])
            view.forceActiveFocus()
            cards()[0].forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Return)
            compare(bench.sparkCount(), 1)
            tryVerify(() => cards().length === 1 && cards()[0].text === "stays")
            bench.advance(50)
            tryVerify(() => field().activeFocus)
        }

        function test_afterItsClosingItStartsFresh() {
            make(["one"])
            view.forceActiveFocus()
            keyClick("x")
            keyClick(Qt.Key_Backspace)
            verify(field().canUndo)
            mouseClick(cards()[0], 60, 10, Qt.RightButton)
            verify(named("Copy"))

            bench.panel.startFresh()

            tryVerify(() => !named("Copy"))
            verify(field().activeFocus)
            verify(!field().canUndo && !field().canRedo)
            keyClick("y")
            compare(bench.panel.quickNote, "y")
            bench.panel.startFresh()
            compare(field().text, "")
        }

        function test_theMenuKeyOpensTheMenu_data() {
            return [
                { tag: "menu", key: Qt.Key_Menu, modifiers: Qt.NoModifier },
                { tag: "shift+f10", key: Qt.Key_F10, modifiers: Qt.ShiftModifier }
            ]
        }

        function test_theMenuKeyOpensTheMenu(row) {
            make(["one"])
            view.forceActiveFocus()
            cards()[0].forceActiveFocus(Qt.TabFocusReason)
            keyClick(row.key, row.modifiers)
            verify(named("Copy"))
            keyClick(Qt.Key_Escape)
            tryVerify(() => !named("Copy"))
            verify(cards()[0].activeFocus)
        }

        function test_arrowsWalkTheCards() {
            make(["1", "2", "3"])
            view.forceActiveFocus()
            cards()[0].forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Down)
            verify(cards()[1].activeFocus)
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Up)
            verify(cards()[0].activeFocus)
        }

        function test_everythingIsReachedWithTab() {
            make(["spark"])
            view.forceActiveFocus()
            keyClick("x")
            const reached = []
            for (let i = 0; i < 5; ++i) {
                keyClick(Qt.Key_Tab)
                reached.push(stage.Window.activeFocusItem.Accessible.name)
            }
            compare(reached.sort(), ["Capture a spark", "Reset", "Send", "Start", "spark"])
        }

        function test_aLongTextIsPastedAndSent() {
            make()
            view.forceActiveFocus()
            bench.panel.typed("words and words\n".repeat(12000))
            waitForRendering(view)
            keyClick(Qt.Key_End)
            keyClick("!")
            keyClick(Qt.Key_Return)
            compare(bench.newestSpark().length, 12000 * 16 + 1)
            verify(cards()[0].height < 60)
        }
    }
}
