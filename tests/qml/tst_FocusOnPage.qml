import QtQuick
import QtTest
import Pelko
import PelkoTest

/// Where the keyboard is on a page, also where it has no field to be in.
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

        name: "FocusOnPage"
        when: windowShown

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
        }

        function fieldSaying(text) {
            return ItemTree.all(page).find(item => item instanceof TextEdit && item.visible && item.text === text)
        }

        function named(name) {
            return ItemTree.all(page).filter(item => item instanceof PressableControl && item.visible && item.name === name)
        }

        function focused() {
            return page.Window.activeFocusItem
        }

        function press(keys) {
            for (const key of keys)
                keySequence(key)
        }

        /// The page in one line: kinds by their name, the text behind a colon, entries in brackets.
        function written() {
            return bench.blocks().map(block => block.type + (block.todos
                ? "[" + block.todos.map(todo => todo.text).join(",") + "]"
                : block.content === "" ? "" : ":" + block.content)).join(" ")
        }

        // Typing where there is no field

        function test_typingWithoutAFieldGoesOnAtTheEnd_data() {
            return [
                { tag: "picture", blocks: [{ type: "image", picture: "red" }], written: "image textSmall:ab" },
                { tag: "no picture yet", blocks: [{ type: "image" }], written: "image textSmall:ab" },
                { tag: "divider", blocks: [{ type: "divider" }], written: "divider textSmall:ab" },
                { tag: "checklist", blocks: [{ type: "sticky", todos: [] }], written: "sticky[] textSmall:ab" },
                { tag: "no blocks", blocks: [], written: "textSmall:ab" },
                { tag: "text at the end", blocks: [{ type: "divider" }, { type: "quote", content: "q" }], written: "divider quote:qab" },
            ]
        }

        function test_typingWithoutAFieldGoesOnAtTheEnd(row) {
            open(row.blocks)
            press(["A", "B"])
            compare(written(), row.written)
            verify(focused() instanceof TextEdit)
        }

        function test_typingOnADividerIsNotLost() {
            open([{ type: "divider" }, { type: "textSmall", content: "end" }])
            const divider = ItemTree.all(page).find(item => item instanceof DividerBlock)
            divider.block.takeFocus(divider.address, -1)
            press(["X"])
            compare(written(), "divider textSmall:endx")
        }

        function test_keysThatTypeNothingAddNothing() {
            open([{ type: "divider" }])
            press(["Escape", "Ctrl+B", "Alt+X", "F5", "Shift+F5"])
            compare(written(), "divider")
        }

        // The cross of an entry

        function milkAndRye() {
            return [{ type: "textSmall", content: "body" },
                { type: "sticky", todos: ["milk", "rye", "salt"].map(text => ({ text, done: false })) }]
        }

        function clickCross(text) {
            const field = fieldSaying(text)
            const cross = ItemTree.all(field.parent).find(item => item instanceof RemoveTodoButton)
            mouseMove(page, 1, 1)
            mouseClick(cross, cross.width / 2, cross.height / 2)
        }

        function test_aCrossLeavesTheCaretWhereItIs_data() {
            return [{ tag: "body" }, { tag: "milk" }, { tag: "salt" }]
        }

        function test_aCrossLeavesTheCaretWhereItIs(row) {
            open(milkAndRye())
            const field = fieldSaying(row.tag)
            field.takeFocus(2)
            clickCross("rye")
            compare(written(), "textSmall:body sticky[milk,salt]")
            compare(focused(), field)
            compare(field.cursorPosition, 2)
        }

        function test_theCrossOfTheEntryWithTheCaretMovesItToTheNext() {
            open(milkAndRye())
            fieldSaying("rye").takeFocus(1)
            clickCross("rye")
            compare(focused().text, "milk")
        }

        function test_theCrossByKeyboardLeavesTheKeyboardInTheList() {
            open(milkAndRye())
            fieldSaying("body").takeFocus(1)
            const cross = ItemTree.all(fieldSaying("rye").parent).find(item => item instanceof RemoveTodoButton)
            cross.forceActiveFocus(Qt.TabFocusReason)
            press(["Return"])
            compare(written(), "textSmall:body sticky[milk,salt]")
            compare(focused().text, "milk")
        }

        // An empty checklist

        function aroundAChecklist() {
            return [{ type: "textSmall", content: "above" }, { type: "sticky", todos: [] }, { type: "textSmall", content: "below" }]
        }

        function test_keysStopAtAnEmptyChecklist_data() {
            return [{ tag: "Up", from: "below" }, { tag: "Left", from: "below" }, { tag: "Backspace", from: "below" },
                { tag: "Down", from: "above" }, { tag: "Right", from: "above" }, { tag: "Delete", from: "above" }]
        }

        function test_keysStopAtAnEmptyChecklist(row) {
            open(aroundAChecklist())
            fieldSaying(row.from).takeFocus(row.from === "above" ? -1 : 0)
            press([row.tag])
            compare(focused(), named("To do...")[0])
            press(["Return", "X"])
            compare(written(), "textSmall:above sticky[x] textSmall:below")
        }

        function test_keysGoOnFromAnEmptyChecklist_data() {
            return [{ tag: "Up", to: "above" }, { tag: "Left", to: "above" }, { tag: "Down", to: "below" }, { tag: "Right", to: "below" }]
        }

        function test_keysGoOnFromAnEmptyChecklist(row) {
            open(aroundAChecklist())
            named("To do...")[0].forceActiveFocus()
            press([row.tag])
            compare(focused().text, row.to)
        }

        function test_anEmptyChecklistGoesWithOneKey_data() {
            return [{ tag: "Delete" }, { tag: "Backspace" }]
        }

        function test_anEmptyChecklistGoesWithOneKey(row) {
            open(aroundAChecklist())
            named("To do...")[0].forceActiveFocus()
            press([row.tag])
            compare(written(), "textSmall:above textSmall:below")
        }

        // A heading that leads the page cannot be deleted.
        function test_aDeleteButtonThatGoesGivesTheKeyboardBackToItsBlock() {
            open([{ type: "textSmall", content: "body" }, { type: "textLarge", content: "Head" }])
            fieldSaying("Head").forceActiveFocus()
            press(["Tab"])
            verify(named("Delete").includes(focused()))
            tryCompare(focused().parent, "opacity", 1)
            press(["Alt+Up"])
            compare(written(), "textLarge:Head textSmall:body")
            compare(focused(), fieldSaying("Head"))
        }

        function test_aBannerThatMovesDownKeepsTheKeyboard() {
            open([{ type: "image", picture: "red", isFullWidth: true, bannerTitle: "Title" }, { type: "textSmall", content: "below" }])
            fieldSaying("Title").takeFocus(-1)
            press(["Alt+Down"])
            compare(written(), "textSmall:below image")
            verify(focused().visible)
            press(["Alt+Up"])
            compare(written(), "image textSmall:below")
            compare(focused(), fieldSaying("Title"))
        }
    }
}
