import QtQuick
import QtTest
import Pelko
import PelkoTest

/// Texts with characters that a text document takes for its own: they are shown, and stay as they are.
Item {
    id: root

    width: 900
    height: 1600 // all kinds of blocks in sight

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

        name: "SeparatorsInText"
        when: windowShown

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
        }

        function everything(item) {
            return [item].concat(...Array.from(item.children).map(child => everything(child)))
        }

        function fields() {
            return everything(page).filter(item => item instanceof TextEdit && item.visible)
                .sort((one, other) => one.mapToItem(page, 0, 0).y - other.mapToItem(page, 0, 0).y)
        }

        function separators() {
            return [
                { tag: "U+2028", text: "one\u2028two" },
                { tag: "U+2029", text: "one\u2029two" },
                { tag: "lone CR", text: "one\rtwo" },
                { tag: "CR LF", text: "one\r\ntwo" },
                { tag: "CR at the end", text: "onetwo\r" },
                { tag: "NEL", text: "one\u0085two" },
                { tag: "U+FDD0", text: "one\ufdd0two" },
                { tag: "U+FDD1", text: "one\ufdd1two" },
                { tag: "U+FFFC", text: "one\ufffctwo" },
                { tag: "NUL", text: "one\u0000two" },
                { tag: "all of them", text: "\u2028o\u2029n\re\ufdd0t\ufdd1w\ufffco\u0085\r\n\r" },
            ]
        }

        /// A page of every kind of text, where `text` stands in all of them.
        function everyKind(text) {
            return [{ type: "image", content: "", isFullWidth: true, picture: "gold", bannerTitle: text },
                { type: "textLarge", content: text }, { type: "textSmall", content: text },
                { type: "quote", content: text }, { type: "code", content: text },
                { type: "sticky", content: "", todos: [{ text: text, done: false }] }]
        }

        function texts() {
            return [].concat(...bench.blocks().map(block => block.bannerTitle
                ?? (block.todos ? block.todos.map(todo => todo.text) : block.content)))
        }

        function test_showing_a_text_does_not_change_it_data() {
            return separators()
        }

        function test_showing_a_text_does_not_change_it(row) {
            open(everyKind(row.text))
            compare(texts(), Array(6).fill(row.text))
            compare(fields().length, 6)
        }

        function test_a_letter_typed_is_all_that_changes_data() {
            return separators()
        }

        function test_a_letter_typed_is_all_that_changes(row) {
            open(everyKind(row.text))
            for (const field of fields()) {
                field.takeFocus(row.text.length)
                keyClick("x")
                field.takeFocus(0)
                keyClick("y")
            }
            compare(texts(), Array(6).fill("y" + row.text + "x"))
        }

        function test_return_over_a_separator_splits_there_data() {
            return separators().slice(0, 3)
        }

        function test_return_over_a_separator_splits_there(row) {
            open([{ type: "textSmall", content: row.text }])
            fields()[0].takeFocus(0)
            fields()[0].select(3, 7)
            keyClick(Qt.Key_Return)
            compare(texts(), ["one", ""])
        }

        function test_separators_are_drawn_as_line_breaks_data() {
            return separators().slice(0, 4)
        }

        function test_separators_are_drawn_as_line_breaks(row) {
            open([{ type: "textSmall", content: row.text }, { type: "textSmall", content: "one\ntwo" }])
            compare(fields()[0].lineCount, 2)
            compare(fields()[0].height, fields()[1].height)
        }

        function test_the_middle_button_gets_the_stored_text_data() {
            return separators()
        }

        function test_the_middle_button_gets_the_stored_text(row) {
            open([{ type: "textLarge", content: "head" }, { type: "textSmall", content: row.text }])
            const field = fields()[1]
            field.takeFocus(0)
            keySequence("Ctrl+A")
            tryVerify(() => bench.offered() === row.text)
        }

        function test_pasted_separators_stay_as_they_are_data() {
            return [
                { tag: "U+2028", text: "1\u20282" },
                { tag: "U+2029", text: "1\u20292" },
                { tag: "lone CR", text: "1\r2" },
                { tag: "U+FDD0", text: "1\ufdd02" },
            ]
        }

        function test_pasted_separators_stay_as_they_are(row) {
            open([{ type: "textLarge", content: "head" }, { type: "textSmall", content: "body" }])
            bench.copy(row.text)
            fields()[1].takeFocus(2)
            keySequence("Ctrl+V")
            compare(texts(), ["head", "bo" + row.text + "dy"])
            keyClick("x")
            compare(texts(), ["head", "bo" + row.text + "xdy"])
        }

        function test_text_pasted_over_a_crossing_selection_comes_in_once_data() {
            return test_pasted_separators_stay_as_they_are_data()
        }

        function test_text_pasted_over_a_crossing_selection_comes_in_once(row) {
            open([{ type: "textLarge", content: "head" }, { type: "textSmall", content: "body" }])
            bench.copy(row.text)
            fields()[0].takeFocus(2)
            keySequence("Shift+Down")
            keySequence("Ctrl+V")
            compare(texts().join("|").replace(row.text, "#").match(/#/g), ["#"])
            compare(texts().length, 1)
        }
    }
}
