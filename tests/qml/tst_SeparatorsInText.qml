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

        function fields() {
            return ItemTree.all(page).filter(item => item instanceof TextEdit && item.visible)
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

        function test_showingATextDoesNotChangeIt_data() {
            return separators()
        }

        function test_showingATextDoesNotChangeIt(row) {
            open(everyKind(row.text))
            compare(texts(), Array(6).fill(row.text))
            compare(fields().length, 6)
        }

        function test_aLetterTypedIsAllThatChanges_data() {
            return separators()
        }

        function test_aLetterTypedIsAllThatChanges(row) {
            open(everyKind(row.text))
            for (const field of fields()) {
                field.takeFocus(row.text.length)
                keyClick("x")
                field.takeFocus(0)
                keyClick("y")
            }
            compare(texts(), Array(6).fill("y" + row.text + "x"))
        }

        function test_returnOverASeparatorSplitsThere_data() {
            return separators().slice(0, 3)
        }

        function test_returnOverASeparatorSplitsThere(row) {
            open([{ type: "textSmall", content: row.text }])
            fields()[0].takeFocus(0)
            fields()[0].select(3, 7)
            keyClick(Qt.Key_Return)
            compare(texts(), ["one", ""])
        }

        function test_separatorsAreDrawnAsLineBreaks_data() {
            return separators().slice(0, 4)
        }

        function test_separatorsAreDrawnAsLineBreaks(row) {
            open([{ type: "textSmall", content: row.text }, { type: "textSmall", content: "one\ntwo" }])
            compare(fields()[0].lineCount, 2)
            compare(fields()[0].height, fields()[1].height)
        }

        function test_theMiddleButtonGetsTheStoredText_data() {
            return separators()
        }

        function test_theMiddleButtonGetsTheStoredText(row) {
            open([{ type: "textLarge", content: "head" }, { type: "textSmall", content: row.text }])
            const field = fields()[1]
            field.takeFocus(0)
            keySequence("Ctrl+A")
            tryVerify(() => bench.offered() === row.text)
        }

        function test_pastedSeparatorsStayAsTheyAre_data() {
            return [
                { tag: "U+2028", text: "1\u20282" },
                { tag: "U+2029", text: "1\u20292" },
                { tag: "lone CR", text: "1\r2" },
                { tag: "U+FDD0", text: "1\ufdd02" },
            ]
        }

        function test_pastedSeparatorsStayAsTheyAre(row) {
            open([{ type: "textLarge", content: "head" }, { type: "textSmall", content: "body" }])
            bench.copy(row.text)
            fields()[1].takeFocus(2)
            keySequence("Ctrl+V")
            compare(texts(), ["head", "bo" + row.text + "dy"])
            keyClick("x")
            compare(texts(), ["head", "bo" + row.text + "xdy"])
        }

        function test_textPastedOverACrossingSelectionComesInOnce_data() {
            return test_pastedSeparatorsStayAsTheyAre_data()
        }

        function test_textPastedOverACrossingSelectionComesInOnce(row) {
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
