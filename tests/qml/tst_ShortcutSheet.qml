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
            readonly property alias sheet: sheet

            anchors.fill: parent
            focus: true

            TextEdit { focus: true; width: 100; height: 30 }
            CommandKeys { commands: program.main.commands }
            ShortcutSheet { id: sheet; anchors.fill: parent; commands: program.main.commands }

            // Stands last so that it outlives the views.
            ShellFixture { id: program }
        }
    }

    TestCase {
        id: test

        name: "ShortcutSheet"
        when: windowShown

        property var app
        property var sheet

        function init() {
            stage.height = 750
            const root = createTemporaryObject(shell, stage)
            app = root.program
            sheet = root.sheet
            root.forceActiveFocus()
            keyClick(Qt.Key_Slash, Qt.ControlModifier)
            tryCompare(sheet, "shown", 1)
        }

        // All visible items below `item` that say something to a screen reader.
        function spoken(item) {
            return ItemTree.all(item).filter(
                item => item.visible && item.Accessible.name !== "" && !item.Accessible.ignored)
        }

        function line(name) {
            return spoken(sheet.card).find(item => item.Accessible.name === name)
        }

        function test_itListsCommandsAndKeysOfThePage() {
            compare(sheet.Accessible.role, Accessible.Dialog)
            compare(sheet.Accessible.name, "Keyboard Shortcuts")
            for (const name of ["New Document, Ctrl+N", "Focus mode, Ctrl+Shift+F", "App menu, F10", "Undo, Ctrl+Z",
                                "Checklist, [ ]+Space"])
                verify(line(name), name)
            compare(line("Getting around").Accessible.role, Accessible.Heading)
        }

        function test_linesAreWholeAndInsideTheSheet() {
            for (const item of spoken(sheet.card)) {
                const corner = item.mapToItem(sheet.card, 0, 0)
                verify(corner.x >= 0 && corner.x + item.width <= sheet.card.width, item.Accessible.name)
                verify(corner.y >= 0 && corner.y + item.height <= sheet.card.height, item.Accessible.name)
            }
        }

        function test_everyWayOut_data() {
            return [{ tag: "Escape", leave: () => keyClick(Qt.Key_Escape) },
                    { tag: "Return", leave: () => keyClick(Qt.Key_Return) },
                    { tag: "cross", leave: () => mouseClick(line("Close")) },
                    { tag: "press action", leave: () => line("Close").Accessible.pressAction() },
                    { tag: "beside", leave: () => mouseClick(stage, 20, 20) }]
        }

        function test_everyWayOut(row) {
            row.leave()
            verify(!app.main.commands.showShortcuts)
            verify(stage.Window.activeFocusItem instanceof TextEdit)
            tryVerify(() => !sheet.visible)
        }

        function test_tabStaysInside() {
            for (const key of [Qt.Key_Tab, Qt.Key_Backtab]) {
                keyClick(key)
                compare(stage.Window.activeFocusItem, line("Close"))
            }
        }

        function test_noOtherKeyGetsThrough() {
            keyClick(Qt.Key_N, Qt.ControlModifier)
            compare(app.documentCount(), 0)
        }

        function test_inALowWindowItScrolls() {
            keyClick(Qt.Key_Escape)
            stage.height = 400
            keyClick(Qt.Key_Slash, Qt.ControlModifier)
            tryCompare(sheet, "shown", 1)
            verify(sheet.card.height <= 400)
            const last = line("Checklist, [ ]+Space")
            const place = () => last.mapToItem(sheet.card, 0, last.height).y
            const start = place()
            verify(start > sheet.card.height)
            keyClick(Qt.Key_Down)
            compare(place(), start - Metrics.sheetRow)
            keyClick(Qt.Key_Up)
            compare(place(), start)
            keyClick(Qt.Key_End)
            verify(place() <= sheet.card.height)
            keyClick(Qt.Key_Home)
            compare(place(), start)
        }
    }
}
