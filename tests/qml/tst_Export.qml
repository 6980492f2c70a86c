pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 900
    height: 600

    Component {
        id: parts

        FocusScope {
            readonly property alias bench: bench

            anchors.fill: parent
            focus: true

            TextInput { objectName: "below"; activeFocusOnTab: true; width: 100; height: 20 }
            FolderChooserDialog { anchors.fill: parent; chooser: bench.chooser }
            ExportAlerts { anchors.fill: parent; exports: bench.exports }

            // Stands last so that it outlives the views.
            ExportFixture { id: bench }
        }
    }

    TestCase {
        name: "Export"
        when: windowShown

        property var root
        property var bench

        function init() {
            root = createTemporaryObject(parts, stage)
            root.forceActiveFocus()
            bench = root.bench
        }

        // The item on show that screen readers call so.
        function named(name, item = root) {
            return ItemTree.all(item).find(
                item => item.visible
                    && ((item.Accessible.name === name && !item.Accessible.ignored) || item.text === name)) ?? null
        }

        function shown(name) {
            tryVerify(() => named(name), 5000, `“${name}” is on show`)
            return named(name)
        }

        function gone(name) {
            tryVerify(() => !named(name), 5000, `“${name}” has gone`)
        }

        // By keys alone: down to the second folder, into it, and on to the button.
        function chooseNotes() {
            bench.exports.exportDocument()
            shown("Export to a folder")
            verify(!named("cat.png"))
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            tryVerify(() => bench.chooser.folder === "/home/me/Notes")
            verify(named("Into “Notes”"))
            const button = shown("Export here")
            compare(button.Accessible.role, Accessible.Button)
            for (let tabs = 0; tabs < 12 && !button.activeFocus; ++tabs)
                keyClick(Qt.Key_Tab)
            verify(button.activeFocus)
            keyClick(Qt.Key_Return)
            gone("Export to a folder")
        }

        function test_aFolderIsChosenByKeys() {
            chooseNotes()
            compare(bench.folder(), "/home/me/Notes")
            bench.succeed()
            const alert = shown("Exported.")
            compare(alert.Accessible.description, "1 page in “Notes”. Plain Markdown, yours to keep.")
            tryVerify(() => named("Got it").activeFocus)
            keyClick(Qt.Key_Return)
            gone("Exported.")
        }

        function test_tabWalksRoundTheChooser_data() {
            return [{ tag: "forwards", key: Qt.Key_Tab }, { tag: "backwards", key: Qt.Key_Backtab }]
        }

        function test_tabWalksRoundTheChooser(row) {
            bench.exports.exportDocument()
            tryVerify(() => named("Files")?.activeFocus)
            const visited = []
            do {
                keyClick(row.key)
                visited.push(stage.Window.activeFocusItem.Accessible.name)
            } while (visited.length < 20 && !named("Files").activeFocus)
            for (const name of ["Cancel", "Export here", "Path", "me"])
                verify(visited.includes(name), `${name} in ${visited}`)
            verify(visited.length < 10, visited)
        }

        function test_escapeChoosesNoFolder() {
            bench.exports.exportDocument()
            shown("Export to a folder")
            keyClick(Qt.Key_Escape)
            gone("Export to a folder")
            compare(bench.folder(), "")
        }

        function test_theHarmlessAnswerReplacesNothing() {
            chooseNotes()
            bench.findTaken(["Untitled.md"])
            shown("Replace “Untitled.md”?")
            tryVerify(() => named("Nah").activeFocus)
            keyClick(Qt.Key_Return)
            gone("Replace “Untitled.md”?")
            verify(!bench.isReplacing())
            verify(!bench.exports.showResult)
        }

        function test_replacingHasToBeChosen() {
            chooseNotes()
            bench.findTaken(["Untitled.md"])
            shown("Replace “Untitled.md”?")
            tryVerify(() => named("Nah").activeFocus)
            keyClick(Qt.Key_Tab)
            verify(named("Replace").activeFocus)
            keyClick(Qt.Key_Return)
            gone("Replace “Untitled.md”?")
            verify(bench.isReplacing())
            bench.succeed()
            shown("Exported.")
        }

        function test_aLongExportCanBeStopped() {
            chooseNotes()
            bench.takeLong()
            shown("Exporting…")
            mouseClick(named("Stop"))
            gone("Exporting…")
            verify(!bench.isWaitedFor())
        }

        function test_aFailureSaysWhy() {
            chooseNotes()
            bench.fail("No space left on device")
            tryVerify(() => named(bench.exports.resultTitle))
            compare(named(bench.exports.resultTitle).Accessible.description,
                    "Export failed: No space left on device. Nothing was left behind.")
            mouseClick(shown("Got it"))
            gone("Got it")
        }
    }
}
