pragma ComponentBehavior: Bound

import QtQuick
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
            readonly property alias program: program
            readonly property alias view: view

            anchors.fill: parent
            focus: true

            MainView { id: view; anchors.fill: parent; focus: true; main: program.main }
            CommandKeys { commands: program.main.commands }

            // Stands last so that it outlives the views.
            ShellFixture { id: program }
        }
    }

    TestCase {
        id: test

        name: "FocusMode"
        when: windowShown

        property var app
        property var root

        function init() {
            mouseMove(stage, 550, 600)
            root = createTemporaryObject(shell, stage)
            app = root.program
            root.forceActiveFocus()
        }

        function cleanup() {
            Motion.reduced = false
        }

        function openPage(kinds) {
            app.openPage(kinds)
            app.advance(1000)
            tryVerify(() => app.main.isFocused || isFurnished())
        }

        function holder() {
            return stage.Window.activeFocusItem
        }

        function toggle() {
            keyClick(Qt.Key_F, Qt.ControlModifier | Qt.ShiftModifier)
        }

        // The first visible control below `item` of that name.
        function control(item, name) {
            const seen = item.visible && item.opacity > 0
            if (!seen || (item instanceof PressableControl && item.name === name))
                return seen ? item : null
            for (const child of Array.from(item.children)) {
                const found = control(child, name)
                if (found)
                    return found
            }
            return null
        }

        function isBare() {
            return ["Menu", "Close", "Divider"].every(name => control(root, name) === null)
        }

        function isFurnished() {
            return ["Menu", "Close", "Divider"].every(name => control(root, name) !== null)
        }

        function test_everythingButThePageFadesAwayAndComesBack() {
            openPage(["textLarge", "textSmall"])
            verify(isFurnished())
            toggle()
            verify(isFurnished()) // it takes its time
            tryVerify(isBare)
            keyClick(Qt.Key_Escape)
            tryVerify(isFurnished)
            verify(!app.main.isFocused)
        }

        function test_theKeyThatBeganItEndsIt() {
            openPage(["textSmall"])
            toggle()
            tryVerify(isBare)
            toggle()
            tryVerify(isFurnished)
        }

        function test_theCaretStaysWhereItIs() {
            openPage(["textSmall"])
            const field = holder()
            for (const key of ["a", "b", "c", Qt.Key_Left])
                keyClick(key)
            for (const on of [true, false]) {
                toggle()
                compare(app.main.isFocused, on)
                compare(holder(), field)
                compare(field.cursorPosition, 2)
            }
            keyClick("x")
            compare(field.text, "abxc")
        }

        function test_thePageGlidesDownAndStaysInTheMiddle() {
            openPage(["textSmall"])
            const field = holder()
            const start = field.mapToItem(root, 0, 0)
            app.main.commands.run("focusMode") // not by key: no time may pass before it is looked at
            verify(field.mapToItem(root, 0, 0).y < start.y + 2)
            tryVerify(() => field.mapToItem(root, 0, 0).y === start.y + 32)
            compare(field.mapToItem(root, 0, 0).x, start.x)
            compare(field.width, 624)
            toggle()
            tryVerify(() => field.mapToItem(root, 0, 0).y === start.y)
        }

        function test_withLittleMotionThePageIsThereAtOnce() {
            Motion.reduced = true
            openPage(["textSmall"])
            const field = holder()
            const start = field.mapToItem(root, 0, 0)
            toggle()
            compare(field.mapToItem(root, 0, 0).y, start.y + 32)
            tryVerify(isBare, 1000)
        }

        function test_aPageThatIsScrolledStaysWhereItIs() {
            openPage(Array(40).fill("textSmall"))
            keyClick(Qt.Key_End, Qt.ControlModifier)
            tryVerify(() => holder().mapToItem(root, 0, 0).y > 400)
            const field = holder()
            mouseWheel(root, 550, 400, 0, 120)
            const place = field.mapToItem(root, 0, 0).y
            toggle()
            tryVerify(isBare)
            compare(field.mapToItem(root, 0, 0).y, place)
        }

        function test_theCaptionButtonsComeBackUnderThePointer() {
            openPage(["textSmall"])
            toggle()
            tryVerify(isBare)
            mouseMove(root, 550, 20)
            tryVerify(() => control(root, "Close") && control(root, "Menu"))
            compare(control(root, "Divider"), null)
            mouseMove(root, 550, 300)
            tryVerify(isBare)
        }

        function test_theMenuLeavesItToo() {
            openPage(["textSmall"])
            toggle()
            keyClick(Qt.Key_F10)
            tryVerify(() => control(root, "Menu"))
            keyClick(Qt.Key_Escape)
            verify(app.main.isFocused) // Escape was for the menu
            keyClick(Qt.Key_F10)
            for (let i = 0; i < 20 && holder().name !== "Focus mode"; ++i)
                keyClick(Qt.Key_Down)
            compare(holder().name, "Focus mode")
            verify(holder().Accessible.checked)
            keyClick(Qt.Key_Return)
            verify(!app.main.isFocused)
            verify(holder() instanceof TextEdit)
        }

        function test_theNavigationGivesTheFocusBackFirst() {
            openPage(["textSmall", "textSmall"])
            keyClick(Qt.Key_Down)
            const field = holder()
            keyClick(Qt.Key_K, Qt.ControlModifier)
            verify(app.main.appState.showNav)
            verify(holder() !== field)
            toggle()
            verify(app.main.isFocused)
            verify(!app.main.appState.showNav)
            compare(holder(), field)
        }

        function test_hoverBringsNothingUp() {
            openPage(["textSmall", "textSmall"])
            const field = holder()
            toggle()
            tryVerify(isBare)
            mouseMove(field, 300, 10)
            wait(250)
            compare(control(root, "Delete"), null)
            toggle()
            mouseMove(field, 301, 10)
            tryVerify(() => control(root, "Delete"))
        }

        function placeOf(item) {
            return item.mapToItem(root, item.width / 2, item.height / 2)
        }

        function pointAt(item) {
            mouseMove(root, placeOf(item).x - 2, placeOf(item).y)
            mouseMove(root, placeOf(item).x, placeOf(item).y)
        }

        // In a new checklist below the page.
        function addTask(text) {
            app.main.editor.addBlock("sticky")
            app.advance(1000)
            tryVerify(() => control(root, "To do..."))
            const row = control(root, "To do...").parent
            row.takeFocus(-1)
            for (const letter of text)
                keyClick(letter)
            mouseMove(row, 100, 10)
            tryVerify(() => control(root, "Remove"))
        }

        function test_noCrossComesUpBesideATask() {
            openPage(["textSmall"])
            addTask("tea")
            const cross = control(root, "Remove")
            toggle()
            tryVerify(isBare)
            pointAt(cross)
            compare(control(root, "Remove"), null)
            mouseClick(root, placeOf(cross).x, placeOf(cross).y)
            toggle()
            tryVerify(isFurnished)
            pointAt(cross)
            tryVerify(() => control(root, "Remove"))
            verify(control(root, "tea"))
        }

        function test_aClickWhereDeleteWouldBeDeletesNothing() {
            openPage(["textSmall", "textSmall"])
            const field = holder()
            mouseMove(field, 300, 10)
            tryVerify(() => control(root, "Delete"))
            const remove = control(root, "Delete")
            toggle()
            tryVerify(isBare)
            tryVerify(() => !remove.visible)
            pointAt(remove)
            mouseClick(root, placeOf(remove).x, placeOf(remove).y)
            compare(app.main.editor.blocks.rowCount(), 2)
        }

        function test_theKeyboardDoesNotStayOnAHiddenControl_data() {
            return [{ tag: "Delete" }, { tag: "Remove" }]
        }

        function test_theKeyboardDoesNotStayOnAHiddenControl(row) {
            openPage(["textSmall", "textSmall"])
            if (row.tag === "Remove")
                addTask("tea")
            const field = holder()
            keyClick(Qt.Key_Tab)
            compare(holder().name, row.tag)
            toggle()
            tryVerify(isBare)
            tryVerify(() => holder() === field)
            keyClick("x")
            verify(field.text.includes("x"))
        }

        function test_tabStaysOnThePage() {
            openPage(["textSmall", "textSmall"])
            const first = holder()
            toggle()
            tryVerify(isBare)
            const walked = []
            for (const key of [Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Backtab, Qt.Key_Backtab]) {
                keyClick(key)
                verify(holder().visible)
                walked.push(holder())
            }
            verify(walked.includes(first))
            verify(walked.some(item => item instanceof TextEdit && item !== first))
        }

        function test_theFocusComesToTheFirstText() {
            openPage(["divider", "textSmall", "textSmall"])
            control(root, "Divider").forceActiveFocus(Qt.TabFocusReason)
            toggle()
            verify(holder() instanceof TextEdit)
            compare(app.main.editor.rowOf(app.main.editor.focusedBlockID), 1)
        }

        function test_theKeyboardDoesNotStayBehindOnAPageWithoutText() {
            openPage(["divider", "divider"])
            control(root, "Divider").forceActiveFocus(Qt.TabFocusReason)
            toggle()
            tryVerify(isBare)
            verify(holder().visible)
            keyClick(Qt.Key_Escape)
            tryVerify(isFurnished)
        }

        function test_anotherPageIsFocusedOnToo() {
            openPage(["textSmall"])
            toggle()
            openPage(["textLarge"])
            tryVerify(isBare)
            app.closeDocument()
            tryVerify(() => control(root, "Menu") && control(root, "Start Writing"))
        }
    }
}
