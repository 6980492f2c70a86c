import QtQuick
import QtTest
import Pelko
import PelkoTest

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

        name: "CaretTravel"
        when: windowShown

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
        }

        function fields() {
            return ItemTree.all(page).filter(item => item.Accessible.role === Accessible.EditableText && item.visible)
                .sort((a, b) => a.mapToItem(page, 0, 0).y - b.mapToItem(page, 0, 0).y)
        }

        /// The field that says this.
        function saying(text) {
            return fields().find(field => field.getText(0, 9999).startsWith(text))
        }

        function go(field, caret) {
            field.cursorPosition = caret
            field.forceActiveFocus()
        }

        /// Where the caret is, such as "milk@2".
        function place() {
            const field = page.Window.activeFocusItem
            return field.getText(0, 9999) + "@" + field.cursorPosition
        }

        function caretX() {
            const field = page.Window.activeFocusItem
            return field.mapToItem(page, field.cursorRectangle.x, 0).x
        }

        function press(keys) {
            for (const key of keys.split(" ")) {
                const parts = key.split("+")
                const names = { Ctrl: Qt.ControlModifier, Shift: Qt.ShiftModifier }
                const modifiers = parts.slice(0, -1).reduce((sum, name) => sum | names[name], 0)
                keyClick(Qt["Key_" + parts[parts.length - 1]], modifiers)
            }
        }

        function everyKind() {
            return [{ type: "textLarge", content: "Head" }, { type: "textSmall", content: "body" },
                { type: "divider" }, { type: "quote", content: "quote" }, { type: "code", content: "one\ntwo" },
                { type: "image" }, { type: "sticky", todos: [{ text: "milk", done: false }, { text: "rye", done: true }] },
                { type: "textSmall", content: "end" }]
        }

        function test_keysLeaveATextForTheNext_data() {
            return [
                { from: "Head@4", keys: "Right", to: "body@0" },
                { from: "body@0", keys: "Left", to: "Head@4" },
                { from: "body@4", keys: "Right", to: "quote@0" },
                { from: "quote@0", keys: "Left", to: "body@4" },
                { from: "body@4", keys: "Ctrl+Right", to: "quote@0" },
                { from: "quote@0", keys: "Ctrl+Left", to: "body@4" },
                { from: "body@1", keys: "Right", to: "body@2" },
                { from: "one@3", keys: "Right", to: "one\ntwo@4" },
                { from: "one@7", keys: "Right", to: "milk@0" },
                { from: "milk@4", keys: "Right", to: "rye@0" },
                { from: "rye@3", keys: "Right", to: "end@0" },
                { from: "end@0", keys: "Left", to: "rye@3" },
                { from: "end@3", keys: "Right", to: "end@3" },
                { from: "Head@0", keys: "Left", to: "Head@0" },
                { from: "Head@0", keys: "Down", to: "body@0" },
                { from: "body@0", keys: "Up", to: "Head@0" },
                { from: "body@0", keys: "Down", to: "quote@0" },
                { from: "one@1", keys: "Down", to: "one\ntwo@5" },
                { from: "one@0", keys: "Down Down", to: "milk@0" },
                { from: "milk@0", keys: "Down Down", to: "end@3" },
                { from: "Head@2", keys: "Up", to: "Head@0" },
                { from: "end@1", keys: "Down", to: "end@3" },
                { from: "end@1", keys: "Ctrl+Home", to: "Head@0" },
                { from: "Head@1", keys: "Ctrl+End", to: "end@3" },
                { from: "body@2", keys: "Home", to: "body@0" },
                { from: "body@2", keys: "End", to: "body@4" },
                { from: "one@5", keys: "Home", to: "one\ntwo@4" },
                { from: "Head@1", keys: "PageDown", to: "end@" },
                { from: "end@1", keys: "PageUp PageUp", to: "Head@" },
            ].map(row => Object.assign(row, { tag: row.from + " " + row.keys }))
        }

        function test_keysLeaveATextForTheNext(row) {
            open(everyKind())
            const [text, caret] = row.from.split("@")
            go(saying(text), Number(caret))
            press(row.keys)
            verify(place().startsWith(row.to), place())
        }

        function test_keysLeaveWhatHasNoText_data() {
            const ways = [{ keys: "Up", to: "above@0" }, { keys: "Left", to: "above@5" },
                { keys: "Down", to: "below@0" }, { keys: "Right", to: "below@0" }]
            const pictures = [{ type: "image" }, { type: "image", picture: "red" }, { type: "divider" }]
            return [].concat(...pictures.map(picture => ways.map(way =>
                ({ tag: picture.type + " " + (picture.picture ?? "") + way.keys, picture, keys: way.keys, to: way.to }))))
        }

        function test_keysLeaveWhatHasNoText(row) {
            open([{ type: "textSmall", content: "above" }, row.picture, { type: "textSmall", content: "below" }])
            const block = ItemTree.all(page).find(item => item instanceof BlockRow && !(item instanceof TextBlock))
            block.block.takeFocus(block.address, -1)
            press(row.keys)
            compare(place(), row.to)
        }

        function test_keysDoNotLeadIntoAHiddenTitle_data() {
            const pictures = [{ type: "image" }, { type: "image", picture: "red" }, { type: "image", picture: "red", bannerTitle: "hidden" }]
            const keys = ["PageDown", "PageUp", "Down", "Up", "Ctrl+End", "Ctrl+Home", "Left", "Right"]
            return [].concat(...pictures.map((picture, number) => keys.map(key => ({ tag: key + " " + number, picture, key }))))
        }

        function test_keysDoNotLeadIntoAHiddenTitle(row) {
            open([row.picture, { type: "divider" }, row.picture])
            const ends = ItemTree.all(page).filter(item => item instanceof ImageBlock)
            for (const end of [ends[0], ends[ends.length - 1]]) {
                end.block.takeFocus(end.address, -1)
                press(row.key)
                verify(page.Window.activeFocusItem.visible, page.Window.activeFocusItem)
            }
            keyClick("x")
            compare(bench.blocks().map(block => block.type + " " + (block.content ?? "")).pop(), "textSmall x")
        }

        function test_upAndDownKeepTheirColumn() {
            open([{ type: "textLarge", content: "A heading as wide as this" }, { type: "textSmall", content: "x" },
                { type: "divider" }, { type: "quote" }, { type: "code", content: "abc\na long line of code, even wider than this one" },
                { type: "sticky", todos: [{ text: "short", done: false }] },
                { type: "textSmall", content: "and at last a line that is wide enough again to be at the same place" }])
            go(saying("A heading"), 20)
            const x = caretX()
            press("Down")
            compare(place(), "x@1")
            press("Down Down")
            compare(place(), "abc\na long line of code, even wider than this one@3")
            press("Down")
            verify(Math.abs(caretX() - x) < 8, caretX() + " is not " + x)
            press("Down Down")
            verify(place().startsWith("and at last"))
            verify(Math.abs(caretX() - x) < 8, caretX() + " is not " + x)
            press("Up Up Up Up Up Up")
            compare(place(), "A heading as wide as this@20")
        }

        function test_aNewColumnBeginsWhereTheCaretWasPut() {
            open([{ type: "textSmall", content: "a rather long line" }, { type: "textSmall", content: "x" },
                { type: "textSmall", content: "another long line" }])
            go(saying("a rather"), 12)
            press("Down Left Down")
            compare(place(), "another long line@0")
        }

        function test_wrappedLinesAreLines() {
            const words = Array.from({ length: 40 }, (_, i) => "word" + i).join(" ")
            open([{ type: "textSmall", content: words }, { type: "textSmall", content: "word below" }])
            const field = saying("word0")
            go(field, 3)
            const lines = field.lineCount
            verify(lines > 2)
            for (let line = 1; line < lines; ++line) {
                press("Down")
                compare(page.Window.activeFocusItem, field)
            }
            press("Down")
            compare(place(), "word below@3")
            press("Up")
            compare(page.Window.activeFocusItem, field)
            go(field, 0)
            press("End Down Up")
            compare(field.cursorRectangle.y, field.positionToRectangle(0).y)
        }

        function test_scriptsReadFromRightToLeftAreLeftAtTheLeft() {
            open([{ type: "textSmall", content: "שלום" }, { type: "textSmall", content: "end" }])
            go(fields()[0], 4)
            press("Left")
            compare(place(), "end@0")
            go(fields()[0], 0)
            press("Left")
            compare(fields()[0].cursorPosition, 1)
        }

        function test_theViewFollowsTheCaretOverALongPage() {
            open(Array.from({ length: 80 }, (_, i) => ({ type: i % 7 ? "textSmall" : "textLarge", content: "line " + i })))
            go(saying("line 0"), 3)
            for (let step = 1; step < 80; ++step) {
                press("Down")
                verify(place().startsWith("line " + step + "@"), place() + " after " + step)
            }
            wait(0)
            tryVerify(() => page.Window.activeFocusItem.mapToItem(page, 0, 0).y < page.height - Metrics.barHeight)
            press("Ctrl+Home")
            compare(place(), "line 0@0")
            tryVerify(() => page.Window.activeFocusItem.mapToItem(page, 0, 0).y >= 0)
            press("Ctrl+End")
            compare(place(), "line 79@7")
            tryVerify(() => page.Window.activeFocusItem.mapToItem(page, 0, 0).y < page.height - Metrics.barHeight)
        }

        function test_turningPagesGoesThroughAllOfItAndBack() {
            open(Array.from({ length: 80 }, (_, i) => ({ type: "textSmall", content: "line " + i })))
            go(saying("line 0"), 4)
            const seen = []
            const line = () => Number(page.Window.activeFocusItem.getText(5, 9))
            for (let turn = 0; turn < 12; ++turn) {
                press("PageDown")
                seen.push(line())
                wait(0)
            }
            for (let turn = 1; turn < seen.length; ++turn)
                verify(seen[turn] - seen[turn - 1] < 20 && seen[turn] >= seen[turn - 1], seen)
            compare(seen[11], 79)
            for (let turn = 0; turn < 12; ++turn) {
                press("PageUp")
                wait(0)
            }
            compare(place(), "line 0@4")
        }

        function test_arrowsLeaveABlockWithoutText_data() {
            return [{ tag: "Up", to: "body@4" }, { tag: "Down", to: "quote@0" }, { tag: "Left", to: "body@4" },
                { tag: "Right", to: "quote@0" }, { tag: "Ctrl+Home", to: "Head@0" }]
        }

        function test_arrowsLeaveABlockWithoutText(row) {
            open(everyKind())
            const rule = ItemTree.all(page).find(item => item.Accessible.role === Accessible.Separator && item.visible)
            rule.forceActiveFocus()
            press(row.tag)
            compare(place().replace("body@0", "body@4"), row.to)
        }

        function test_keysAreLeftToAnInputMethodThatComposes() {
            open([{ type: "textSmall", content: "a" }, { type: "textSmall", content: "b" }])
            go(saying("a"), 1)
            bench.compose("ni")
            press("Down")
            compare(page.Window.activeFocusItem.getText(0, 1), "a")
        }
    }
}
