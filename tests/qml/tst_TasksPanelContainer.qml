pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 1100
    height: 750

    Component {
        id: shell

        FocusScope {
            readonly property alias bench: bench
            readonly property alias view: view

            anchors.fill: parent
            focus: true

            MainView {
                id: view

                anchors.fill: parent
                focus: true
                main: bench.main
                tasks: bench.tasks
            }

            // Stands last so that it outlives the views.
            TasksFixture { id: bench }
        }
    }

    TestCase {
        name: "TasksPanelContainer"
        when: windowShown

        property var bench
        property var view

        function init() {
            const made = createTemporaryObject(shell, stage)
            bench = made.bench
            view = made.view
            bench.add("Page", ["-do"])
            tryVerify(() => toggle() !== null)
            tryCompare(find(view, item => item instanceof T.StackView), "busy", false)
        }

        function cleanup() {
            Motion.reduced = false
        }

        function find(item, fits) {
            return ItemTree.all(item).find(item => item.visible && fits(item)) ?? null
        }

        function toggle() {
            return find(view, item => item instanceof TasksPanelToggleButton)
        }

        function panel() {
            return find(view, item => item instanceof TasksPanelView)
        }

        function editor() {
            return find(view, item => item instanceof EditorView)
        }

        function test_theToggleSaysWhatItWillDo() {
            compare(toggle().name, "Tasks")
            compare(toggle().icon.name, "sidebar.right")
            compare(toggle().Accessible.checked, false)
            bench.tasks.toggle()
            compare(toggle().name, "Hide")
            compare(toggle().icon.name, "chevron.right")
            compare(toggle().Accessible.checked, true)
        }

        function test_thePanelComesAndThePageGivesWay() {
            mouseClick(toggle())
            verify(panel())
            verify(panel().opacity < 1)
            tryCompare(panel(), "opacity", 1)
            compare(panel().mapToItem(view, 0, 0).x, 1100 - 240)
            compare(panel().height, 750)
            tryVerify(() => editor().width === 1100 - 240)
            mouseClick(toggle())
            tryVerify(() => panel() === null)
            tryVerify(() => editor().width === 1100)
        }

        function test_itClosesTwiceAsFastAsItOpens() {
            let start = Date.now()
            mouseClick(toggle())
            tryVerify(() => panel().mapToItem(view, 0, 0).x <= 860)
            const opening = Date.now() - start
            wait(500)
            start = Date.now()
            mouseClick(toggle())
            tryVerify(() => panel() === null)
            verify(Date.now() - start < opening)
        }

        function test_aReleaseOutsideLeavesNothingPressed() {
            const button = toggle()
            mousePress(button)
            verify(button.down)
            mouseMove(button, -50, -50)
            mouseRelease(button, -50, -50)
            verify(!button.down)
            verify(!bench.tasks.isShown)
        }

        function test_otherSpacesHaveNeitherToggleNorPanel() {
            bench.tasks.toggle()
            tryVerify(() => panel())
            bench.goTo("journal")
            verify(toggle() === null)
            tryVerify(() => panel() === null)
            verify(bench.tasks.isShown)
            bench.goTo("work")
            verify(toggle())
            tryVerify(() => panel())
        }

        function test_whatWasTypedIsGoneAtTheNextOpening() {
            bench.tasks.toggle()
            const first = panel()
            bench.tasks.panel.typed("half a thou")
            bench.tasks.toggle()
            bench.tasks.toggle()
            tryVerify(() => panel() !== first)
            compare(find(panel(), item => item instanceof LineField).text, "")
        }

        function test_anotherPageLeavesThePanelAlone() {
            bench.tasks.toggle()
            const first = panel()
            bench.tasks.panel.typed("half a thou")
            bench.add("Other")
            wait(50)
            compare(panel(), first)
            compare(find(first, item => item instanceof LineField).text, "half a thou")
        }

        function test_itStandsBesideTheEmptyStateToo() {
            bench.tasks.toggle()
            bench.closeDocument()
            tryVerify(() => find(view, item => item instanceof EmptyState))
            verify(panel())
        }

        function test_theKeyboardGoesBackToThePage_data() {
            return [
                { tag: "closed", leave: () => bench.tasks.toggle() },
                { tag: "Escape", leave: () => keyClick(Qt.Key_Escape) },
                { tag: "hidden", leave: () => { find(view, item => item instanceof TasksPanelContainer).visible = false } },
            ]
        }

        function test_theKeyboardGoesBackToThePage(row: var) {
            bench.tasks.toggle()
            tryCompare(panel(), "opacity", 1)
            find(panel(), item => item instanceof LineField).forceActiveFocus()
            verify(panel().activeFocus)
            row.leave()
            verify(editor().activeFocus)
        }

        function test_focusModeSendsItAwayAndBringsItBack() {
            bench.tasks.toggle()
            const first = panel()
            tryCompare(first, "opacity", 1)
            find(first, item => item instanceof LineField).forceActiveFocus()
            bench.main.commands.run("focusMode")
            verify(stage.Window.activeFocusItem instanceof TextEdit)
            compare(bench.main.editor.rowOf(bench.main.editor.focusedBlockID), 0)
            tryVerify(() => panel() === null)
            tryVerify(() => editor().width === 1100)
            verify(bench.tasks.isShown)
            keyClick(Qt.Key_Escape)
            tryVerify(() => panel() === first)
            tryVerify(() => editor().width === 860)
        }

        function test_focusModeSendsAPanelAwayThatOpens() {
            bench.main.commands.run("focusMode")
            bench.tasks.toggle()
            wait(100)
            compare(panel(), null)
            keyClick(Qt.Key_Escape)
            tryVerify(() => panel())
        }

        function test_theEventsAreFetchedWheneverThePanelComesIntoSight() {
            bench.tasks.toggle()
            tryCompare(panel(), "opacity", 1)
            compare(bench.fetches(), 1)
            bench.main.commands.run("focusMode")
            tryVerify(() => panel() === null)
            keyClick(Qt.Key_Escape)
            tryVerify(() => panel())
            compare(bench.fetches(), 2)
            stage.Window.window.hide()
            compare(bench.fetches(), 2)
            stage.Window.window.show()
            tryVerify(() => bench.fetches() === 3)
            tryVerify(() => stage.Window.active)
        }

        function test_littleMotionIsAFadeInPlace() {
            Motion.reduced = true
            bench.tasks.toggle()
            compare(panel().mapToItem(view, 0, 0).x, 860)
            tryVerify(() => editor().width === 860)
            tryCompare(panel(), "opacity", 1)
            bench.tasks.toggle()
            tryVerify(() => editor().width === 1100)
            tryVerify(() => panel() === null)
        }
    }
}
