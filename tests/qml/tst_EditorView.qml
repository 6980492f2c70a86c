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

        name: "EditorView"
        when: windowShown

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
        }

        function kinds() {
            return bench.blocks().map(block => block.type).join(" ")
        }

        function contents() {
            return bench.blocks().map(block => block.content).join("|")
        }

        function type(text) {
            for (const letter of text)
                keyClick(letter)
        }

        function fields() {
            return ItemTree.all(page).filter(item => item.Accessible.role === Accessible.EditableText && item.visible)
        }

        function hover(field) {
            mouseMove(page, 5, 300)
            mouseMove(field, 20, 10)
        }

        /// The visible items below the view that tell a screen reader this name.
        function named(name) {
            return ItemTree.all(page).filter(item => item.Accessible.name === name && item.visible)
        }

        function test_openingAFreshPagePutsTheCaretIntoItsHeading() {
            open([{ type: "textLarge" }, { type: "textSmall" }])
            type("abc")
            compare(contents(), "abc|")
        }

        function test_typingShortcuts_data() {
            return [
                { tag: "heading", typed: "# x", kinds: "textLarge textLarge", contents: "t|x" },
                { tag: "quote", typed: "> x", kinds: "textLarge quote", contents: "t|x" },
                { tag: "code", typed: "```x", kinds: "textLarge code", contents: "t|x" },
                { tag: "divider", typed: "---x", kinds: "textLarge divider textSmall", contents: "t||x" },
                { tag: "nothing", typed: "#x", kinds: "textLarge textSmall", contents: "t|#x" },
            ]
        }

        function test_typingShortcuts(row) {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall" }])
            type(row.typed)
            compare(kinds(), row.kinds)
            compare(contents(), row.contents)
        }

        function test_aChecklistShortcutGoesOnInTheFirstEntry() {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall" }])
            type("[] milk")
            keyClick(Qt.Key_Return)
            type("eggs")
            compare(bench.blocks()[1].todos, [{ done: false, text: "milk" }, { done: false, text: "eggs" }])
        }

        function test_returnSplitsAndTheCaretGoesOnBelow() {
            open([{ type: "textLarge", content: "" }])
            type("ab")
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Return)
            type("X")
            compare(kinds(), "textLarge textSmall")
            compare(contents(), "a|Xb")
        }

        function test_backspaceInAnEmptyBlockGoesBackToTheEndOfTheOneAbove() {
            open([{ type: "textLarge", content: "ab" }, { type: "textSmall" }])
            keyClick(Qt.Key_Backspace)
            type("c")
            compare(kinds(), "textLarge")
            compare(contents(), "abc")
        }

        function test_noBreakSpacesSurviveAKey() {
            open([{ type: "textLarge", content: "" }, { type: "textSmall", content: "10\u00a0km" }])
            bench.editor.focusRequested(named("Body")[0].address, -1)
            type("x")
            compare(contents(), "|10\u00a0kmx")
        }

        function test_aPageChangedElsewhereIsShown() {
            open([{ type: "textLarge", content: "before" }])
            bench.replace([{ type: "textLarge", content: "after" }, { type: "quote", content: "wise" }])
            tryVerify(() => fields().map(field => field.Accessible.name).join(" ") === "Heading Quote")
            compare(fields().map(field => field.getText(0, 99)), ["after", "wise"])
        }

        function test_placeholdersStandWhereNothingIsWritten() {
            open([{ type: "textLarge" }, { type: "quote", content: "q" }])
            const placeholder = ItemTree.all(page).find(item => item.text === "Start writing..." && item.visible)
            verify(placeholder)
            const caret = placeholder.parent.cursorRectangle
            verify(Math.abs(placeholder.y - caret.y) <= 1, "it stands where its letters will")
            verify(Math.abs(placeholder.height - caret.height) <= 1)
            type("a")
            verify(!placeholder.visible)
        }

        function test_aRuleWaitsForTheEndOfAComposition() {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall" }])
            bench.commit("# ", "rest")
            compare(kinds(), "textLarge textSmall")
            bench.commit("rest")
            compare(kinds(), "textLarge textSmall")
            compare(contents(), "t|# rest")
        }

        function test_whatIsComposedIsStoredWhenItIsSettled() {
            open([{ type: "textLarge" }])
            bench.compose("ni")
            compare(contents(), "")
            bench.commit("你")
            compare(contents(), "你")
        }

        function test_theBarAddsEachKindAtTheEnd_data() {
            return [
                { tag: "Heading", kind: "textLarge", focused: true },
                { tag: "Body", kind: "textSmall", focused: true },
                { tag: "Quote", kind: "quote", focused: true },
                { tag: "Code", kind: "code", focused: true },
                { tag: "Divider", kind: "divider", focused: false },
                { tag: "Image", kind: "image", focused: false },
                { tag: "Checklist", kind: "sticky", focused: false },
            ]
        }

        function test_theBarAddsEachKindAtTheEnd(row) {
            open([{ type: "textLarge", content: "" }])
            const chip = named(row.tag).find(item => item.Accessible.role === Accessible.Button)
            mouseClick(chip)
            bench.advance(180)
            compare(kinds(), "textLarge " + row.kind)
            type("z")
            compare(contents(), row.focused ? "|z" : "z|")
        }

        function test_aTickChangesItsEntry() {
            open([{ type: "sticky", todos: [{ text: "milk", done: false }, { text: "eggs", done: true }] }])
            const ticks = ItemTree.all(page).filter(item => item.Accessible.role === Accessible.CheckBox)
            compare(ticks.map(tick => tick.Accessible.name), ["milk", "eggs"])
            compare(ticks.map(tick => tick.Accessible.checked), [false, true])
            mouseClick(ticks[0])
            compare(bench.blocks()[0].todos[0].done, true)
            compare(ticks[0].Accessible.checked, true)
        }

        function test_theCrossRemovesAnEntryAndAFirstOneCanBeMadeAgain() {
            open([{ type: "sticky", todos: [{ text: "milk", done: false }] }])
            mouseClick(named("Remove")[0])
            compare(bench.blocks()[0].todos, [])
            mouseClick(named("To do...").find(item => item.Accessible.role === Accessible.Button))
            type("tea")
            compare(bench.blocks()[0].todos, [{ done: false, text: "tea" }])
        }

        function test_hoveringABlockOffersToDeleteIt() {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall", content: "b" }])
            const field = named("Body").find(item => item.Accessible.role === Accessible.EditableText)
            hover(field)
            tryVerify(() => named("Delete").length === 1)
            tryCompare(named("Delete")[0], "opacity", 1)
            mouseClick(named("Delete")[0])
            compare(kinds(), "textLarge")
        }

        function test_aLeadingHeadingHasNoDeleteButton() {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall", content: "b" }])
            hover(fields()[1])
            tryVerify(() => named("Delete").length === 1)
            hover(fields()[0])
            tryVerify(() => named("Delete").length === 0)
        }

        function test_aSingleBlockHasNeitherButtonNorMenu() {
            open([{ type: "textSmall", content: "b" }])
            const field = named("Body").find(item => item.Accessible.role === Accessible.EditableText)
            hover(field)
            waitForRendering(page)
            compare(named("Delete").length, 0)
            mouseClick(field, 20, 10, Qt.RightButton)
            compare(named("Delete Block").length, 0)
        }

        function test_theContextMenuDeletesEvenALeadingHeading() {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall", content: "b" }])
            const field = named("Heading").find(item => item.Accessible.role === Accessible.EditableText)
            mouseClick(field, 20, 10, Qt.RightButton)
            tryVerify(() => named("Delete Block").length === 1)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(kinds(), "textSmall")
        }

        function test_theContextMenuOpensOverTheControlsOfAChecklistToo_data() {
            return [
                { tag: "tick", name: "tea", role: Accessible.CheckBox, cursor: Qt.PointingHandCursor },
                { tag: "cross", name: "Remove", role: Accessible.Button, cursor: Qt.PointingHandCursor },
                { tag: "words", name: "tea", role: Accessible.EditableText, cursor: Qt.IBeamCursor },
            ]
        }

        function test_theContextMenuOpensOverTheControlsOfAChecklistToo(row) {
            open([{ type: "textLarge", content: "t" }, { type: "sticky", todos: [{ text: "tea" }] }])
            const before = bench.blocks()
            const control = named(row.name).find(item => item.Accessible.role === row.role)
            mouseMove(control, 4, 4)
            compare(bench.cursorOf(control), row.cursor)
            mouseClick(control, 5, 5, Qt.RightButton)
            tryVerify(() => named("Delete Block").length === 1)
            compare(bench.blocks(), before)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Return)
            compare(kinds(), "textLarge")
        }

        function test_theMenuKeyOpensTheContextMenu() {
            open([{ type: "textLarge", content: "" }, { type: "textSmall", content: "b" }])
            keyClick(Qt.Key_Menu)
            tryVerify(() => named("Delete Block").length === 1)
            keyClick(Qt.Key_Escape)
            tryVerify(() => named("Delete Block").length === 0)
            type("x")
            compare(contents(), "x|b")
        }

        function test_tabWalksThroughEverythingAndBack() {
            open([{ type: "textLarge", content: "" }, { type: "sticky", todos: [{ text: "milk", done: false }] }])
            const seen = []
            for (let step = 0; step < 6; ++step) {
                seen.push(page.Window.activeFocusItem.Accessible.name)
                keyClick(Qt.Key_Tab)
            }
            compare(seen, ["Heading", "milk", "milk", "Remove", "Delete", "Heading"])
            compare(page.Window.activeFocusItem.Accessible.name, "Body")
            keyClick(Qt.Key_Backtab)
            keyClick(Qt.Key_Backtab)
            compare(page.Window.activeFocusItem.Accessible.name, "Delete")
            keyClick(Qt.Key_Backtab)
            compare(page.Window.activeFocusItem.Accessible.name, "Remove")
        }

        function test_theFocusRingShowsOnlyWhereTheKeyboardWalked_data() {
            return [{ tag: "Divider", kind: "divider", buttons: 1 }, { tag: "Image", kind: "image", buttons: 2 }]
        }

        function test_theFocusRingShowsOnlyWhereTheKeyboardWalked(row) {
            open([{ type: row.kind, picture: "red" }, { type: "textSmall", content: "b" }])
            const block = named(row.tag).find(item => item.activeFocus)
            const ringed = () => ItemTree.all(block).some(item => item instanceof FocusRing && item.shown)
            verify(block && !ringed())
            bench.editor.focusRequested(fields()[0].address, 0)
            for (let step = 0; step <= row.buttons; ++step)
                keyClick(Qt.Key_Backtab)
            compare(page.Window.activeFocusItem, block)
            verify(ringed())
        }

        function test_theTitleFollowsTheHeading() {
            open([{ type: "textLarge", content: "" }])
            verify(named("Untitled").length === 1)
            type("Plan")
            verify(named("Plan").length === 1)
        }

        function test_theTitleIsShownOnOneLine_data() {
            return ["\n", "\r", "\u2028", "\u2029", "\u0085", " \r\n "].map(between => ({ tag: escape(between), between: between }))
        }

        function test_theTitleIsShownOnOneLine(row) {
            open([{ type: "textLarge", content: "Plan" + row.between + "B" }])
            verify(named("Plan B").length === 1)
        }

        function test_openingShowsTheEmptyBlockThatTakesTheCaret() {
            const lines = Array.from({ length: 60 }, (_, i) => ({ type: "textSmall", content: "line " + i }))
            open(lines.concat([{ type: "quote" }]))
            const field = named("Quote").find(item => item.Accessible.role === Accessible.EditableText)
            verify(field.activeFocus)
            tryVerify(() => field.mapToItem(page, 0, field.height).y < page.height - Metrics.barHeight)
        }

        function test_aNewBlockBelowTheFoldIsScrolledIntoSight() {
            open(Array.from({ length: 60 }, (_, i) => ({ type: "textSmall", content: "line " + i })))
            bench.editor.addBlock("quote")
            tryCompare(bench.editor, "scrollTarget", "")
            bench.advance(180)
            type("last")
            const field = named("Quote").find(item => item.Accessible.role === Accessible.EditableText)
            verify(field.mapToItem(page, 0, field.height).y < page.height - Metrics.barHeight)
        }
    }
}
