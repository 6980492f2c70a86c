import QtQuick
import QtTest
import Pelko
import PelkoTest

/// Keys and pointer while a checklist has scrolled out of the rows that the view keeps.
Item {
    id: root

    width: 900
    height: 640

    EditorFixture { id: bench }

    Component {
        id: view

        EditorView {
            anchors.fill: parent
            editor: bench.editor
            focus: true
        }
    }

    TestCase {
        id: test

        property EditorView page

        name: "ScrolledAway"
        when: windowShown

        /// A heading, a checklist of three and forty paragraphs, with the caret in the heading.
        function init() {
            const todos = ["milk", "rye", "salt"].map(text => ({ text, done: false }))
            const paragraphs = Array.from({ length: 40 }, (_, i) => ({ type: "textSmall", content: "paragraph " + i }))
            bench.open([{ type: "textLarge", content: "Head" }, { type: "sticky", todos }, ...paragraphs])
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
            fieldSaying("Head").takeFocus(0)
            wait(0)
        }

        function fieldSaying(text) {
            return ItemTree.all(page).find(item => item instanceof TextEdit && item.text === text)
        }

        function list() {
            return ItemTree.all(page).find(item => item instanceof ListView)
        }

        /// Presses keys such as "Ctrl+End Up"; what left the view in between is gone by the next.
        function press(keys) {
            for (const key of keys.split(" ")) {
                keySequence(key)
                wait(0)
            }
        }

        function focused() {
            return page.Window.activeFocusItem
        }

        function test_keysGoOn_data() {
            return [
                { keys: "PgDown PgDown PgDown PgDown", text: "paragraph 39" },
                { keys: "Ctrl+End PgUp", text: /^paragraph [12]\d$/ },
                { keys: "Ctrl+End PgUp PgUp PgUp PgUp", text: "Head" },
                { keys: "Ctrl+End Shift+Up", text: "paragraph 38" },
                { keys: "Ctrl+End Ctrl+A Ctrl+A", text: "paragraph 39" },
                { keys: "Ctrl+End Ctrl+Home Ctrl+End", text: "paragraph 39" },
            ].map(row => Object.assign(row, { tag: row.keys }))
        }

        function test_keysGoOn(row) {
            press(row.keys)
            verify(focused().text.match(row.text) !== null, focused().text)
        }

        function test_theWholePageIsSelected() {
            press("Ctrl+End Ctrl+A Ctrl+A Ctrl+C")
            verify(bench.copied().startsWith("Head\n"))
            verify(bench.copied().includes("milk"))
            verify(bench.copied().endsWith("paragraph 39"))
        }

        function test_aClickAtTheEndAndKeysGoOn() {
            for (let turn = 0; turn < 60; ++turn)
                mouseWheel(page, page.width / 2, page.height / 2, 0, -360)
            wait(0)
            compare(fieldSaying("milk"), undefined)
            mouseClick(fieldSaying("paragraph 39"), 5, 5)
            press("Shift+Up")
            compare(focused().text, "paragraph 38")
            press("Delete")
            compare(bench.blocks().length, 41)
        }

        function test_aSelectionReachesToTheOtherEnd_data() {
            return [{ tag: "Ctrl+Home Ctrl+Shift+End", head: "paragraph 39" }, { tag: "Ctrl+End Ctrl+Shift+Home", head: "Head" }]
        }

        function test_aSelectionReachesToTheOtherEnd(row) {
            press(row.tag)
            const head = page.Window.activeFocusItem
            compare(head.text, row.head)
            compare(head.selectedText, row.head)
            press("Ctrl+C")
            verify(bench.copied().startsWith("Head\n"), bench.copied())
            verify(bench.copied().endsWith("paragraph 39"), bench.copied())
        }

        function test_aRowThatScrollsIntoASelectionShowsIt() {
            press("Ctrl+A")
            press("Ctrl+A")
            mouseWheel(page, page.width / 2, page.height / 2, 0, 12000)
            wait(50)
            compare(fieldSaying("Head").selectedText, "Head")
            mouseWheel(page, page.width / 2, page.height / 2, 0, -24000)
            wait(50)
            compare(fieldSaying("paragraph 39").selectedText, "paragraph 39")
        }

        function test_theChecklistIsFoundAgain() {
            press("Ctrl+End Ctrl+Home Down")
            compare(focused().text, "milk")
            press("X")
            compare(bench.blocks()[1].todos[0].text, "xmilk")
        }
    }
}
