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
            readonly property alias below: below

            anchors.fill: parent
            focus: true

            TextInput { id: below; focus: true; width: 100; height: 20 }
            FolderChooserDialog { anchors.fill: parent; chooser: bench.chooser }

            // Stands last so that it outlives the views.
            ChooserFixture { id: bench }
        }
    }

    TestCase {
        id: test

        name: "FolderChooser"
        when: windowShown

        property var root
        property var bench

        function init() {
            root = createTemporaryObject(parts, stage)
            root.forceActiveFocus()
            bench = root.bench
            bench.choose()
            tryVerify(() => named("Files").activeFocus)
        }

        // The item on show that screen readers call so, or the words.
        function named(name, item = root) {
            return ItemTree.all(item).find(
                item => item.visible
                    && ((item.Accessible.name === name && !item.Accessible.ignored) || item.text === name)) ?? null
        }

        function rows() {
            const found = ItemTree.all(named("Files")).filter(
                item => item instanceof FolderRowButton && item.Accessible.role === Accessible.ListItem && item.visible)
            return found.sort((one, other) => one.y - other.y)
        }

        function names() {
            return rows().map(row => row.name)
        }

        function current() {
            return rows().filter(row => row.Accessible.selected).map(row => row.name)
        }

        function isGone() {
            return !named("Add image")
        }

        function type(text) {
            for (const letter of text)
                keyClick(letter)
        }

        function test_keysWalkToAPictureAndChooseIt() {
            verify(named("Add image"))
            compare(names(), ["Pictures", "cat.png"])
            compare(current(), ["Pictures"])
            keyClick(Qt.Key_Return)
            compare(names(), ["alp.jpg", "Ant.jpg", "bee.jpg"])
            compare(named("Path").text, "/home/me/Pictures")
            keyClick(Qt.Key_End)
            compare(current(), ["bee.jpg"])
            keyClick(Qt.Key_Up)
            keyClick(Qt.Key_Return)
            compare(bench.chosen(), "/home/me/Pictures/Ant.jpg")
            tryVerify(isGone)
            verify(root.below.activeFocus)
        }

        function test_backspaceGoesUpToWhereOneCameFrom() {
            keyClick(Qt.Key_Backspace)
            compare(names(), ["empty", "locked", "me"])
            compare(current(), ["me"])
            keyClick(Qt.Key_Backspace)
            compare(names(), ["home", "many"])
            verify(!named("Up").enabled)
            keyClick(Qt.Key_Backspace)
            compare(named("Path").text, "/")
        }

        function test_thePointerWalksAndChooses() {
            mouseClick(named("Up"))
            compare(names(), ["empty", "locked", "me"])
            mouseClick(rows()[0])
            compare(current(), ["empty"])
            mouseDoubleClickSequence(rows()[2])
            compare(names(), ["Pictures", "cat.png"])
            mouseClick(named("Pictures", named("Places")))
            compare(names(), ["alp.jpg", "Ant.jpg", "bee.jpg"])
            mouseClick(rows()[1])
            compare(bench.chosen(), "")
            mouseClick(named("Open"))
            compare(bench.chosen(), "/home/me/Pictures/Ant.jpg")
            tryVerify(isGone)
        }

        function test_aDoubleClickChoosesAPicture() {
            mouseDoubleClickSequence(rows()[1])
            compare(bench.chosen(), "/home/me/cat.png")
            tryVerify(isGone)
        }

        function test_assistiveTechnologyChooses() {
            rows()[1].Accessible.pressAction()
            compare(current(), ["cat.png"])
            named("Open").Accessible.pressAction()
            compare(bench.chosen(), "/home/me/cat.png")
        }

        function test_itIsCalledOff_data() {
            return [
                { tag: "Escape", call: () => keyClick(Qt.Key_Escape) },
                { tag: "the button", call: () => mouseClick(named("Cancel")) },
            ]
        }

        function test_itIsCalledOff(row) {
            row.call()
            compare(bench.chosen(), "nothing")
            tryVerify(isGone)
            verify(root.below.activeFocus)
        }

        function test_aFolderThatCannotBeReadSaysWhyAndTheOldOneStays() {
            keyClick(Qt.Key_Backspace)
            keyClick(Qt.Key_Up)
            compare(current(), ["locked"])
            keyClick(Qt.Key_Return)
            verify(named("Permission denied"))
            compare(names(), ["empty", "locked", "me"])
            compare(current(), ["locked"])
            compare(named("Path").text, "/home")
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Return)
            verify(!named("Permission denied"))
            verify(named("No pictures here."))
            compare(names(), [])
            verify(!named("Open").enabled)
        }

        function test_theWordsCoverNoneOfManyFolders() {
            bench.chooser.goTo("/many")
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_Return)
            const words = named("Permission denied")
            const list = named("Files")
            compare(current(), ["zz locked"])
            verify(list.mapToItem(root, 0, list.height).y <= words.mapToItem(root, 0, 0).y)
            const row = rows().find(row => row.Accessible.selected)
            verify(row.mapToItem(list, 0, row.height).y <= list.height, "the row is in sight")
            verify(words.mapToItem(root, 0, words.height).y <= named("Open").mapToItem(root, 0, 0).y)
        }

        function test_lettersFindAName() {
            keyClick(Qt.Key_Return)
            type("be")
            compare(current(), ["bee.jpg"])
            wait(1100)
            type("an")
            compare(current(), ["Ant.jpg"])
            type("x")
            compare(current(), ["Ant.jpg"])
        }

        function test_aPathIsTyped() {
            keyClick(Qt.Key_L, Qt.ControlModifier)
            verify(named("Path").activeFocus)
            type("~/Pictures")
            keyClick(Qt.Key_Return)
            compare(names(), ["alp.jpg", "Ant.jpg", "bee.jpg"])
            verify(named("Files").activeFocus)
            keyClick(Qt.Key_L, Qt.ControlModifier)
            type("bee.jpg")
            keyClick(Qt.Key_Return)
            compare(bench.chosen(), "/home/me/Pictures/bee.jpg")
        }

        function test_escapeLeavesThePathAsItWas() {
            keyClick(Qt.Key_L, Qt.ControlModifier)
            type("nowhere")
            keyClick(Qt.Key_Escape)
            verify(named("Files").activeFocus)
            compare(named("Path").text, "/home/me")
            compare(bench.chosen(), "")
        }

        function test_tabWalksRound() {
            const visited = []
            do {
                keyClick(Qt.Key_Tab)
                visited.push(stage.Window.activeFocusItem.Accessible.name)
            } while (visited.length < 20 && !named("Files").activeFocus)
            for (const name of ["Cancel", "Open", "me", "Pictures", "Up", "Path"])
                verify(visited.includes(name), `${name} in ${visited}`)
            compare(visited.length, 7)
        }
    }
}
