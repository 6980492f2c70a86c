import QtQuick
import QtTest
import Pelko
import PelkoTest

/// After any key the caret is in the window, and the page has moved only as far as that takes.
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
        property ListView list

        name: "CaretInSight"
        when: windowShown

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
            list = ItemTree.all(page).find(item => item instanceof ListView)
        }

        function fields() {
            return ItemTree.all(page).filter(item => item instanceof TextEdit && item.visible)
                .sort((one, other) => one.mapToItem(page, 0, 0).y - other.mapToItem(page, 0, 0).y)
        }

        function focused() {
            return page.Window.activeFocusItem
        }

        function lines(count) {
            return Array.from({ length: count }, (_, line) => "line " + line).join("\n")
        }

        function entries(count) {
            return Array.from({ length: count }, (_, entry) => ({ text: "entry " + entry, done: false }))
        }

        /// Puts the caret into a field and lets the page follow.
        function go(field, caret) {
            field.takeFocus(caret)
            settle()
        }

        function settle() {
            wait(50) // rows above are created in the frames that follow
        }

        function verifyInSight(what) {
            verify(focused() instanceof TextEdit, what + ": " + focused())
            const caret = list.mapFromItem(focused(), focused().cursorRectangle)
            verify(caret.y >= Metrics.stripHeight && caret.y + caret.height <= list.height,
                   what + ": from " + caret.y + " to " + (caret.y + caret.height) + " in " + list.height)
        }

        /// How far a key moves the page; the caret is in sight then.
        function moves(key) {
            const before = list.contentY
            keySequence(key)
            settle()
            verifyInSight(key)
            return Math.abs(list.contentY - before)
        }

        function test_downAndUpThroughATallChecklist() {
            open([{ type: "textLarge", content: "Head" }, { type: "sticky", todos: entries(40) }])
            go(fields()[1], 0)
            for (let step = 0; step < 39; ++step)
                verify(moves("Down") < 2 * Typography.checklistRow)
            compare(focused().text, "entry 39")
            for (let step = 0; step < 39; ++step)
                verify(moves("Up") < 2 * Typography.checklistRow)
            compare(focused().text, "entry 0")
        }

        function test_upFromBelowATallChecklist_data() {
            return [{ tag: "Up", text: "entry 39" }, { tag: "Left", text: "entry 39" }, { tag: "Shift+Up", text: "entry 39" },
                { tag: "Backspace", text: "entry 39below" }]
        }

        function test_upFromBelowATallChecklist(row) {
            open([{ type: "sticky", todos: entries(40) }, { type: "textSmall", content: "below" }])
            go(fields()[0], 0)
            moves("Ctrl+End")
            moves("Home")
            verify(moves(row.tag) < 60)
            compare(focused().text, row.text)
        }

        function test_returnInATallChecklist() {
            open([{ type: "sticky", todos: entries(40) }, { type: "textSmall", content: "below" }])
            go(fields()[30], -1)
            verify(moves("Return") < 2 * Typography.checklistRow)
            compare(focused().text, "")
            verify(moves("Ctrl+Z") < 2 * Typography.checklistRow)
            compare(focused().text, "entry 30")
            verify(moves("Backspace") === 0)
        }

        function test_aLongTextIsPutIn_data() {
            return [{ tag: "code" }, { tag: "quote" }]
        }

        function test_aLongTextIsPutIn(row) {
            open([{ type: "textLarge", content: "Head" }, { type: row.tag, content: "first\nlast" }])
            go(fields()[1], 6)
            focused().insert(6, lines(80) + "\n")
            settle()
            verifyInSight("after the text")
            verify(moves("Left") < 60)
        }

        function test_keysInABlockTallerThanTheWindow_data() {
            const types = ["textSmall", "quote", "code"]
            const keys = ["Return", "Shift+Return", "Left", "Down", "Up", "Backspace", "Delete"]
            return [].concat(...types.map(type => keys.map(key => ({ tag: type + " " + key, type, key }))))
        }

        function test_keysInABlockTallerThanTheWindow(row) {
            open([{ type: "textLarge", content: "Head" }, { type: row.type, content: lines(80) }])
            go(fields()[1], lines(40).length)
            verifyInSight("at first")
            verify(moves(row.key) < 60)
            verify(moves("Ctrl+Z") < 60)
            verify(moves("Ctrl+Y") < 60)
        }

        function test_undoBringsThePlaceBack() {
            open([{ type: "textLarge", content: "Head" }, { type: "code", content: lines(80) }])
            go(fields()[1], lines(40).length)
            const place = list.contentY
            keySequence("Shift+Return")
            settle()
            scrollAway()
            moves("Ctrl+Z")
            compare(focused().cursorPosition, lines(40).length)
            verify(Math.abs(list.contentY - place) < list.height)
        }

        function scrollAway() {
            // Where the page begins is a guess of the list until it is there.
            tryVerify(() => {
                mouseWheel(page, page.width / 2, page.height / 2, 0, 12000)
                settle()
                return list.itemAtIndex(0) !== null
            })
        }

        function test_anyKeyBringsTheCaretBack_data() {
            return ["X", "Left", "Home", "Ctrl+C", "Ctrl+End", "Shift+Right"].map(key => ({ tag: key }))
        }

        function test_anyKeyBringsTheCaretBack(row) {
            const paragraphs = Array.from({ length: 60 }, (_, i) => ({ type: "textSmall", content: "paragraph " + i }))
            open([{ type: "textLarge", content: "Head" }, ...paragraphs])
            keySequence("Ctrl+End")
            settle()
            keySequence("Home")
            settle()
            scrollAway()
            moves(row.tag)
        }

        function test_aBlockThatIsMovedPastATallOne() {
            open([{ type: "textLarge", content: "Head" }, { type: "textSmall", content: lines(80) },
                { type: "textSmall", content: "below" }])
            go(fields()[0], 2)
            for (const key of ["Alt+Down", "Alt+Up", "Alt+Down", "Alt+Down"]) {
                keySequence(key)
                wait(600) // the glide of the rows
                verifyInSight(key)
                compare(focused().text, "Head")
            }
        }

        function test_aRowThatGrowsAboveTheCaret() {
            open([...Array.from({ length: 14 }, () => ({ type: "textSmall", content: "word" })), { type: "textSmall" }])
            go(fields()[14], 0)
            for (const character of "------")
                keyClick(character)
            wait(600) // until the rules have grown
            verifyInSight("after the rules")
        }

        function test_returnInABlockThatWasAdded() {
            open(Array.from({ length: 20 }, () => ({ type: "textSmall", content: "word" })))
            bench.editor.addBlock("textSmall")
            wait(600) // the glide to the block
            keyClick(Qt.Key_Return)
            wait(600) // until the row has grown
            verifyInSight("after Return")
        }

        function test_a_picture_pasted_into_a_short_page_leaves_it_where_it_stood() {
            open([{ type: "textLarge", content: "Head" }, { type: "textSmall", content: lines(9) }, { type: "textSmall", content: "" }])
            go(fields()[1], 0)
            const stood = list.contentY
            bench.copyPicture("red")
            keySequence("Ctrl+V")
            wait(600) // the glide to the block
            compare(list.contentY, stood)
            verifyInSight("after the picture")
        }

        function test_what_comes_in_above_does_not_push_the_caret_out_of_sight() {
            open([{ type: "sticky", todos: entries(1) }, ...Array.from({ length: 9 }, () => ({ type: "textSmall", content: "word" }))])
            go(fields()[9], 0)
            for (let task = 0; task < 10; ++task)
                bench.addTask("task " + task)
            wait(600)
            verifyInSight("after the tasks")
        }

        function test_aPageThatWasScrolledStaysThereWhenSomethingComesIn() {
            open([{ type: "sticky", todos: entries(1) }, ...Array.from({ length: 60 }, () => ({ type: "textSmall", content: "word" }))])
            go(fields()[0], 0)
            for (let step = 0; step < 12; ++step)
                mouseWheel(page, page.width / 2, page.height / 2, 0, -120)
            const place = list.contentY
            verify(place > 400, place)
            bench.addTask("task")
            wait(600)
            verify(Math.abs(list.contentY - place) < 60, list.contentY)
        }

        function test_aGlideThatIsInterruptedHasEnded() {
            const paragraphs = Array.from({ length: 60 }, (_, i) => ({ type: "textSmall", content: "paragraph " + i }))
            open(paragraphs)
            bench.editor.addBlock("divider")
            verify(bench.editor.scrollTarget !== "")
            mouseWheel(page, page.width / 2, page.height / 2, 0, 120)
            compare(bench.editor.scrollTarget, "")
        }
    }
}
