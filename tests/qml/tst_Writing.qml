import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: root

    width: 900
    height: 640

    EditorFixture { id: bench }

    FocusScope {
        id: stage

        anchors.fill: parent
        focus: true
    }

    Component {
        id: view

        EditorView {
            anchors.fill: parent
            editor: bench.editor
            focus: true
        }
    }

    Item {
        id: elsewhere

        activeFocusOnTab: true
    }

    TestCase {
        id: test

        property EditorView page

        name: "Writing"
        when: windowShown

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, stage)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
        }

        /// The page in one line: kinds by their first letter, the text in quotes, entries in brackets.
        function written() {
            return bench.blocks().map(block => block.type + (block.todos
                ? "[" + block.todos.map(todo => (todo.done ? "x" : "") + todo.text).join(",") + "]"
                : block.content === "" ? "" : ":" + block.content)).join(" ").replace(/\n/g, "/")
        }

        function type(text) {
            for (const letter of text)
                keyClick(letter)
        }

        function press(keys) {
            for (const key of keys)
                keySequence(key)
        }

        function fields() {
            return ItemTree.all(page).filter(item => item instanceof TextEdit && item.visible)
                .sort((one, other) => one.mapToItem(page, 0, 0).y - other.mapToItem(page, 0, 0).y)
        }

        /// Puts the caret into one of the fields, counted from the top.
        function go(field, caret) {
            fields()[field].takeFocus(caret)
        }

        function focused() {
            return page.Window.activeFocusItem
        }

        // Undo

        function test_undoAndRedoByKey_data() {
            return [
                { tag: "Ctrl+Z, Ctrl+Shift+Z", redo: "Ctrl+Shift+Z" },
                { tag: "Ctrl+Z, Ctrl+Y", redo: "Ctrl+Y" },
            ]
        }

        function test_undoAndRedoByKey(row) {
            open([{ type: "textLarge" }])
            type("one two")
            press(["Return"])
            type("three")
            press(["Ctrl+Z"])
            compare(written(), "textLarge:one two textSmall")
            press(["Ctrl+Z"])
            compare(written(), "textLarge:one two")
            press(["Ctrl+Z", "Ctrl+Z"])
            compare(written(), "textLarge")
            press([row.redo, row.redo, row.redo, row.redo])
            compare(written(), "textLarge:one two textSmall:three")
            type("!")
            compare(written(), "textLarge:one two textSmall:three!")
        }

        function test_undoBringsTheCaretBackToWhereItWas() {
            open([{ type: "textLarge", content: "" }, { type: "textSmall", content: "onetwo" }])
            go(1, 3)
            press(["Return"])
            press(["Ctrl+Z"])
            compare(focused().cursorPosition, 3)
            type("X")
            compare(written(), "textLarge textSmall:oneXtwo")
        }

        function test_undoOfAShortcutGivesBackWhatWasTyped() {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall" }])
            type("# ")
            compare(written(), "textLarge:t textLarge")
            press(["Ctrl+Z"])
            compare(written(), "textLarge:t textSmall:# ")
            compare(focused().cursorPosition, 2)
            press(["Ctrl+Z"])
            compare(written(), "textLarge:t textSmall")
        }

        function test_undoWorksInAnEntry() {
            open([{ type: "sticky", todos: [{ text: "milk", done: false }] }])
            go(0, 4)
            type("s")
            press(["Return"])
            press(["Ctrl+Z"])
            compare(written(), "sticky[milks]")
            compare(focused().cursorPosition, 5)
            press(["Ctrl+Z"])
            compare(written(), "sticky[milk]")
        }

        function test_undoBringsADeletedBlockBackWithTheCaretInIt() {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall", content: "text" }])
            go(1, 2)
            press(["Menu"])
            tryVerify(() => ItemTree.all(page).find(item => item instanceof PopupMenuRow && item.visible))
            press(["Down", "Return"])
            tryVerify(() => written() === "textLarge:t")
            press(["Ctrl+Z"])
            compare(written(), "textLarge:t textSmall:text")
            compare(focused(), fields()[1])
            compare(focused().cursorPosition, 2)
        }

        // Joining

        function test_backspaceAtTheStartJoins_data() {
            return [
                { tag: "text", above: { type: "quote", content: "ab" }, joined: "quote:abXcd" },
                { tag: "checklist", above: { type: "sticky", todos: [{ text: "ab", done: false }] }, joined: "sticky[abXcd]" },
            ]
        }

        function test_backspaceAtTheStartJoins(row) {
            open([row.above, { type: "textSmall", content: "cd" }])
            go(1, 0)
            press(["Backspace"])
            type("X")
            compare(written(), row.joined)
            press(["Ctrl+Z", "Ctrl+Z"])
            compare(focused().cursorPosition, 0)
            compare(focused(), fields()[1])
        }

        function test_backspaceFirstDropsTheStyle() {
            open([{ type: "textSmall", content: "ab" }, { type: "code", content: "cd" }])
            go(1, 0)
            press(["Backspace"])
            compare(written(), "textSmall:ab textSmall:cd")
            press(["Backspace"])
            compare(written(), "textSmall:abcd")
        }

        function test_deleteAtTheEndJoins() {
            open([{ type: "textSmall", content: "ab" }, { type: "textLarge", content: "cd" }])
            go(0, -1)
            press(["Delete"])
            type("X")
            compare(written(), "textSmall:abXcd")
        }

        function test_keysWithinATextJoinNothing() {
            open([{ type: "textSmall", content: "ab" }, { type: "textSmall", content: "cd" }])
            go(1, 1)
            press(["Backspace"])
            compare(written(), "textSmall:ab textSmall:d")
            go(0, 0)
            press(["Delete"])
            compare(written(), "textSmall:b textSmall:d")
            go(1, 0)
            fields()[1].selectAll()
            press(["Backspace"])
            compare(written(), "textSmall:b textSmall")
        }

        function test_aDividerIsSteppedOntoAndRemovedByTheNextKey_data() {
            return [{ tag: "divider", type: "divider" }, { tag: "picture", type: "image" }]
        }

        function test_aDividerIsSteppedOntoAndRemovedByTheNextKey(row) {
            open([{ type: "textSmall", content: "ab" }, { type: row.type }, { type: "textSmall", content: "cd" }])
            go(1, 0)
            press(["Backspace"])
            compare(written(), "textSmall:ab " + row.type + " textSmall:cd")
            verify(ItemTree.all(focused()).find(item => item instanceof FocusRing && item.shown))
            press(["Backspace"])
            compare(written(), "textSmall:ab textSmall:cd")
            compare(focused(), fields()[0])
            compare(focused().cursorPosition, 2)
            press(["Ctrl+Z"])
            compare(written(), "textSmall:ab " + row.type + " textSmall:cd")
        }

        function test_backspaceInAnEntryJoinsAndAtLastLeavesTheChecklist() {
            open([{ type: "sticky", todos: [{ text: "a", done: false }, { text: "b", done: true }] }])
            go(1, 0)
            press(["Backspace"])
            compare(written(), "sticky[ab]")
            compare(focused().cursorPosition, 1)
            press(["Home", "Backspace"])
            compare(written(), "textSmall:ab")
            type("X")
            compare(written(), "textSmall:Xab")
        }

        // Lines

        function test_shiftReturnBreaksTheLineAndReturnSplits() {
            open([{ type: "textLarge", content: "" }, { type: "textSmall", content: "onetwo" }])
            go(1, 3)
            press(["Shift+Return"])
            compare(written(), "textLarge textSmall:one/two")
            type("X")
            press(["Return"])
            type("Y")
            compare(written(), "textLarge textSmall:one/X textSmall:Ytwo")
        }

        function test_codeGoesOnOverItsLinesUntilAnEmptyOne() {
            open([{ type: "textLarge", content: "" }, { type: "code", content: "a" }])
            go(1, -1)
            press(["Shift+Return"])
            type("b")
            press(["Return"])
            type("c")
            press(["Return", "Return"])
            type("d")
            compare(written(), "textLarge code:a/b/c textSmall:d")
        }

        function test_tabIndentsCodeAndControlTabWalksOn() {
            open([{ type: "code", content: "ab" }, { type: "textSmall", content: "c" }])
            go(0, 1)
            press(["Tab"])
            compare(written(), "code:a\tb textSmall:c")
            keyClick(Qt.Key_Backtab)
            compare(written(), "code:ab textSmall:c")
            verify(fields()[0].activeFocus)
            press(["Ctrl+Tab"])
            verify(!fields()[0].activeFocus)
            go(0, 1)
            keyClick(Qt.Key_Backtab)
            verify(!fields()[0].activeFocus)
            compare(written(), "code:ab textSmall:c")
        }

        function test_tabOverSelectedLinesOfCodeMovesThemInOneStepEach() {
            open([{ type: "code", content: "a\nbc\nd" }])
            go(0, 0)
            fields()[0].select(1, 3)
            press(["Tab", "Tab"])
            compare(written(), "code:\t\ta/\t\tbc/d")
            compare(fields()[0].selectedText.replace(/\u2029/g, "\n"), "\t\ta\n\t\tb")
            keyClick(Qt.Key_Backtab)
            compare(written(), "code:\ta/\tbc/d")
            press(["Ctrl+Z"])
            compare(written(), "code:\t\ta/\t\tbc/d")
            press(["Ctrl+Z", "Ctrl+Z"])
            compare(written(), "code:a/bc/d")
        }

        function test_shiftTabOverLinesWithoutIndentationChangesNothing() {
            open([{ type: "code", content: "a\nb" }])
            go(0, 0)
            fields()[0].selectAll()
            keyClick(Qt.Key_Backtab)
            compare(written(), "code:a/b")
            verify(fields()[0].activeFocus)
        }

        function test_backspaceDeletesAnEmojiWholeAndMarksOneByOne_data() {
            return [
                { tag: "joined", text: "👩🏽‍💻" },
                { tag: "flag", text: "🇵🇱" },
                { tag: "keycap", text: "7️⃣" },
                { tag: "pictograph", text: "🔥" },
                { tag: "combining mark", text: "e\u0301", left: "e" },
            ]
        }

        function test_backspaceDeletesAnEmojiWholeAndMarksOneByOne(row) {
            open([{ type: "textSmall", content: "a" + row.text + "b" },
                { type: "sticky", todos: [{ text: row.text, done: false }] }])
            go(0, 1 + row.text.length)
            press(["Backspace"])
            go(1, -1)
            press(["Backspace"])
            const left = row.left ?? ""
            compare(written(), "textSmall:a" + left + "b sticky[" + left + "]")
        }

        function test_shiftDeleteWithoutASelectionJoinsNothing() {
            open([{ type: "textLarge", content: "a" }, { type: "textSmall", content: "b" }])
            go(0, 1)
            press(["Shift+Del"])
            compare(written(), "textLarge:a textSmall:b")
        }

        function test_shiftEnterOfTheKeypadBreaksTheLine() {
            open([{ type: "textSmall", content: "onetwo" }])
            go(0, 3)
            keyClick(Qt.Key_Enter, Qt.ShiftModifier | Qt.KeypadModifier)
            compare(written(), "textSmall:one/two")
        }

        function test_aClickBelowTheLastBlockGoesOnThere_data() {
            return [
                { tag: "empty", last: { type: "textSmall" }, written: "textLarge:t textSmall:x" },
                { tag: "text", last: { type: "quote", content: "ab" }, written: "textLarge:t quote:abx" },
                { tag: "divider", last: { type: "divider" }, written: "textLarge:t divider textSmall:x" },
                { tag: "checklist", last: { type: "sticky", todos: [] }, written: "textLarge:t sticky[] textSmall:x" },
            ]
        }

        function test_aClickBelowTheLastBlockGoesOnThere(row) {
            open([{ type: "textLarge", content: "t" }, row.last])
            mouseClick(page, page.width / 2, 480)
            type("x")
            compare(written(), row.written)
        }

        function test_aClickOnAPageWithoutBlocksBeginsOne() {
            open([])
            mouseClick(page, page.width / 2, page.height / 2)
            type("x")
            compare(written(), "textSmall:x")
        }

        function test_aClickOnThePageElsewhereAddsNothing() {
            open([{ type: "textLarge", content: "t" }, { type: "divider" }])
            mouseClick(page, 20, fields()[0].mapToItem(page, 0, 5).y)
            mouseClick(fields()[0], 5, 5)
            compare(written(), "textLarge:t divider")
        }

        // Nothing typed is lost

        function test_aCompositionIsKeptWhenAnotherPageIsOpened() {
            open([{ type: "textLarge", content: "" }])
            type("ab")
            bench.compose("ni")
            bench.openAnother()
            compare(written(), "textLarge:abni")
            compare(fields()[0].preeditText, "")
        }

        function test_aCompositionIsKeptWhenTheFocusLeaves_data() {
            return [
                { tag: "text", blocks: [{ type: "textLarge", content: "" }], written: "textLarge:ni" },
                { tag: "entry", blocks: [{ type: "sticky", todos: [{ text: "", done: false }] }], written: "sticky[ni]" },
            ]
        }

        function test_aCompositionIsKeptWhenTheFocusLeaves(row) {
            open(row.blocks)
            go(0, 0)
            bench.compose("ni")
            compare(fields()[0].preeditText, "ni")
            elsewhere.forceActiveFocus()
            compare(written(), row.written)
            compare(fields()[0].preeditText, "")
        }

        function test_aCompositionIsKeptInItsPlace() {
            open([{ type: "textLarge", content: "" }, { type: "textSmall", content: "ab" }])
            go(1, 1)
            bench.compose("X")
            go(0, 0)
            compare(written(), "textLarge textSmall:aXb")
            press(["Ctrl+Z"])
            compare(written(), "textLarge textSmall:ab")
        }

        function test_whatWasSettledIsNotKeptTwice() {
            open([{ type: "textLarge", content: "" }])
            bench.compose("ni")
            bench.commit("你")
            elsewhere.forceActiveFocus()
            compare(written(), "textLarge:你")
        }

        function test_keysJoinAndSplitNothingWhileComposing() {
            open([{ type: "textSmall", content: "a" }, { type: "textSmall", content: "b" }])
            go(1, 0)
            bench.compose("ni")
            press(["Backspace"])
            compare(bench.blocks().length, 2)
        }
    }
}
