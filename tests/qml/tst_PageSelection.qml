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

        name: "PageSelection"
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

        function fields() {
            return ItemTree.all(page).filter(item => item.Accessible.role === Accessible.EditableText && item.visible)
                .sort((a, b) => a.mapToItem(page, 0, 0).y - b.mapToItem(page, 0, 0).y)
        }

        function saying(text) {
            return fields().find(field => field.getText(0, 9999).startsWith(text))
        }

        function go(field, caret) {
            field.cursorPosition = caret
            field.forceActiveFocus()
        }

        function press(keys) {
            for (const key of keys.split(" ")) {
                const parts = key.split("+")
                const names = { Ctrl: Qt.ControlModifier, Shift: Qt.ShiftModifier }
                const modifiers = parts.slice(0, -1).reduce((sum, name) => sum | names[name], 0)
                keyClick(Qt["Key_" + parts[parts.length - 1]], modifiers)
            }
        }

        /// What is shown selected, text by text.
        function selected() {
            return fields().map(field => field.selectedText).join("|")
        }

        /// The kinds of the blocks that are shown selected as a whole.
        function washed() {
            return ItemTree.all(page).filter(item => item instanceof SelectionWash && item.children[0].visible)
                .map(item => item.row.kind).join(" ")
        }

        function three() {
            return [{ type: "textLarge", content: "first" }, { type: "textSmall", content: "second" },
                { type: "quote", content: "third" }]
        }

        function everyKind() {
            return [{ type: "textLarge", content: "Head" }, { type: "textSmall", content: "body" },
                { type: "divider" }, { type: "quote", content: "quote" },
                { type: "sticky", todos: [{ text: "milk", done: false }, { text: "rye", done: true }] },
                { type: "code", content: "code" }, { type: "image" }]
        }

        /// The place in the page of that character of a field.
        function pointAt(field, caret) {
            const place = field.positionToRectangle(caret)
            return field.mapToItem(page, place.x, place.y + place.height / 2)
        }

        function drag(from, start, to, end) {
            const a = pointAt(from, start)
            const b = pointAt(to, end)
            mousePress(page, a.x, a.y)
            mouseMove(page, (a.x + b.x) / 2, (a.y + b.y) / 2)
            mouseMove(page, b.x, b.y)
        }

        function release(to, end) {
            const b = pointAt(to, end)
            mouseRelease(page, b.x, b.y)
        }

        function select(from, start, to, end) {
            drag(saying(from), start, saying(to), end)
            release(saying(to), end)
        }

        function test_shiftAndAKeySelectOverBlocks_data() {
            return [
                { from: "first@3", keys: "Shift+Right Shift+Right Shift+Right Shift+Right", selected: "st|s|" },
                { from: "second@1", keys: "Shift+Left Shift+Left Shift+Left", selected: "t|s|" },
                { from: "first@2", keys: "Shift+Down Shift+Down", selected: "rst|second|" },
                { from: "third@2", keys: "Shift+Up", selected: "|nd|th" },
                { from: "first@2", keys: "Shift+Down Shift+End", selected: "rst|second|" },
                { from: "third@2", keys: "Shift+Up Shift+Home", selected: "|second|th" },
                { from: "first@2", keys: "Ctrl+Shift+End", selected: "rst|second|third" },
                { from: "third@2", keys: "Ctrl+Shift+Home", selected: "first|second|th" },
                { from: "first@2", keys: "Shift+PageDown", selected: "rst|second|" },
                { from: "first@5", keys: "Ctrl+Shift+Right Ctrl+Shift+Right", selected: "|second|" },
                { from: "first@2", keys: "Shift+Down Shift+Up", selected: "||" },
                { from: "first@2", keys: "Shift+Down Shift+Up Shift+Right", selected: "r||" },
                { from: "first@4", keys: "Shift+Right Shift+Right Shift+Left Shift+Left Shift+Left", selected: "s||" },
            ].map(row => Object.assign(row, { tag: row.from + " " + row.keys }))
        }

        function test_shiftAndAKeySelectOverBlocks(row) {
            open(three())
            const [text, caret] = row.from.split("@")
            go(saying(text), Number(caret))
            press(row.keys)
            compare(selected(), row.selected)
        }

        function test_aKeyWithoutShiftGivesTheSelectionUp_data() {
            return [
                { tag: "Left", to: "first@2" },
                { tag: "Right", to: "second@3" },
                { tag: "Up", to: "first@3" },
                { tag: "Home", to: "second@0" },
                { tag: "End", to: "second@6" },
                { tag: "Ctrl+Home", to: "first@0" },
                { tag: "Ctrl+End", to: "third@5" },
            ]
        }

        function test_aKeyWithoutShiftGivesTheSelectionUp(row) {
            open(three())
            go(saying("first"), 2)
            press("Shift+Right Shift+Right Shift+Right Shift+Right Shift+Right Shift+Right Shift+Right")
            press(row.tag)
            compare(selected(), "||")
            const field = page.Window.activeFocusItem
            compare(field.getText(0, 99) + "@" + field.cursorPosition, row.to)
        }

        function test_thingsWithoutTextAreSelectedAsAWhole() {
            open(everyKind())
            go(saying("body"), 2)
            press("Shift+Right Shift+Right Shift+Right")
            compare(selected(), "|dy||||")
            compare(washed(), "divider")
            press("Shift+Right Shift+Down")
            compare(washed(), "divider")
            press("Ctrl+Shift+End")
            compare(washed(), "divider sticky image")
            compare(selected(), "|dy|quote|||code")
        }

        function test_selectAllTakesTheTextAndThenThePage() {
            open(everyKind())
            go(saying("body"), 1)
            press("Ctrl+A")
            compare(selected(), "|body||||")
            compare(washed(), "")
            press("Ctrl+A")
            compare(selected(), "Head|body|quote|||code")
            compare(washed(), "divider sticky image")
            compare(page.Window.activeFocusItem, saying("body"))
            press("Ctrl+C")
            compare(bench.copied(), "Head\nbody\n---\nquote\nmilk\nrye\ncode")
        }

        function test_anEmptyTextSelectsThePageAtOnce() {
            open([{ type: "textLarge", content: "first" }, { type: "textSmall" }])
            go(fields()[1], 0)
            press("Ctrl+A")
            compare(selected(), "first|")
        }

        function test_aDragSelectsOverBlocks_data() {
            return [
                { tag: "down", from: "first", start: 2, to: "third", end: 2, selected: "rst|second|th" },
                { tag: "up", from: "third", start: 2, to: "first", end: 2, selected: "rst|second|th" },
                { tag: "within", from: "second", start: 1, to: "second", end: 4, selected: "|eco|" },
            ]
        }

        function test_aDragSelectsOverBlocks(row) {
            open(three())
            select(row.from, row.start, row.to, row.end)
            compare(selected(), row.selected)
            compare(page.Window.activeFocusItem, saying(row.to))
            compare(page.Window.activeFocusItem.cursorPosition, row.end)
        }

        function test_aDragThatComesBackSelectsInItsTextAgain() {
            open(three())
            drag(saying("first"), 2, saying("third"), 2)
            const back = pointAt(saying("first"), 4)
            mouseMove(page, back.x, back.y)
            mouseRelease(page, back.x, back.y)
            compare(selected(), "rs||")
        }

        function test_aDoubleClickAndDragKeepsTheWholeWord_data() {
            return [{ tag: "down", to: "third", selected: "|word below|t" }, { tag: "up", to: "first", selected: "irst|a word|" }]
        }

        function test_aDoubleClickAndDragKeepsTheWholeWord(row) {
            open([{ type: "textLarge", content: "first" }, { type: "textSmall", content: "a word below" }, { type: "quote", content: "third" }])
            const a = pointAt(saying("a word"), 4)
            const b = pointAt(saying(row.to), 1)
            bench.pressTwice(page, Qt.point(a.x, a.y))
            compare(selected(), "|word|")
            mouseMove(page, b.x, b.y, -1, Qt.LeftButton)
            mouseRelease(page, b.x, b.y)
            compare(selected(), row.selected)
        }

        function test_aClickWithShiftSelectsUpToIt() {
            open(three())
            go(saying("first"), 2)
            const there = pointAt(saying("third"), 3)
            mouseClick(page, there.x, there.y, Qt.LeftButton, Qt.ShiftModifier)
            compare(selected(), "rst|second|thi")
            const back = pointAt(saying("second"), 3)
            mouseClick(page, back.x, back.y, Qt.LeftButton, Qt.ShiftModifier)
            compare(selected(), "rst|sec|")
        }

        function test_aClickGivesTheSelectionUp() {
            open(three())
            select("first", 2, "third", 2)
            wait(Application.styleHints.mouseDoubleClickInterval)
            const there = pointAt(saying("second"), 3)
            mouseClick(page, there.x, there.y)
            compare(selected(), "||")
            compare(saying("second").cursorPosition, 3)
        }

        function test_aDragOverTheEdgeScrolls() {
            open(Array.from({ length: 30 }, (_, i) => ({ type: "textSmall", content: i + ". line" })))
            const from = pointAt(saying("2. "), 2)
            mousePress(page, from.x, from.y)
            mouseMove(page, from.x, from.y + 100)
            mouseMove(page, from.x, page.height + 20)
            tryVerify(() => saying("29. ")?.selectedText.length > 0, 20000)
            mouseRelease(page, from.x, page.height + 20)
            press("Ctrl+C")
            verify(bench.copied().startsWith(" line\n3. line\n"))
            verify(bench.copied().includes("\n28. line\n2"))
        }

        function test_whatIsSelectedGoesAndTheCaretStaysAtTheSeam_data() {
            return [
                { tag: "Backspace", contents: "fiXrd", kinds: "textLarge" },
                { tag: "Delete", contents: "fiXrd", kinds: "textLarge" },
                { tag: "Ctrl+X", contents: "fiXrd", kinds: "textLarge" },
                { tag: "Z", contents: "fizXrd", kinds: "textLarge" },
                { tag: "Return", contents: "fi|Xrd", kinds: "textLarge textSmall" },
            ]
        }

        function test_whatIsSelectedGoesAndTheCaretStaysAtTheSeam(row) {
            open(three())
            select("first", 2, "third", 3)
            press(row.tag)
            keyClick("X")
            compare(contents(), row.contents)
            compare(kinds(), row.kinds)
            compare(selected().replace("|", ""), "")
        }

        function test_undoBringsItBackInOneStep() {
            open(three())
            select("first", 2, "third", 3)
            press("Backspace")
            compare(contents(), "fird")
            bench.editor.undo()
            compare(contents(), "first|second|third")
        }

        function test_itIsCopiedAsTextAndMarkdown() {
            open(everyKind())
            select("Head", 2, "code", 2)
            press("Ctrl+C")
            compare(bench.copied(), "ad\nbody\n---\nquote\nmilk\nrye\nco")
            compare(bench.copiedMarkdown(), "# ad\n\nbody\n\n---\n\n> quote\n\n- [ ] milk\n- [x] rye\n\n```\nco\n```")
            compare(selected(), "ad|body|quote|||co")
        }

        function test_textIsPastedOverIt() {
            open(three())
            bench.copy("one\ntwo")
            select("first", 2, "third", 3)
            press("Ctrl+V")
            compare(contents(), "fione|tword")
            keyClick("X")
            compare(contents(), "fione|twoXrd")
        }

        function test_copyCutAndPasteWithinATextAreItsOwn() {
            open(three())
            go(saying("second"), 0)
            press("Shift+Right Shift+Right Ctrl+X")
            compare(contents(), "first|cond|third")
            press("End Ctrl+V")
            compare(contents(), "first|condse|third")
        }

        function test_returnOverItSplitsAfterALineBreak_data() {
            return [
                { tag: "Return", key: Qt.Key_Return, modifiers: Qt.NoModifier, contents: "o\nfi|Xird" },
                { tag: "Enter", key: Qt.Key_Enter, modifiers: Qt.KeypadModifier, contents: "o\nfi|Xird" },
                { tag: "Shift+Return", key: Qt.Key_Return, modifiers: Qt.ShiftModifier, contents: "o\nfi\nXird" },
            ]
        }

        function test_returnOverItSplitsAfterALineBreak(row) {
            open([{ type: "textSmall", content: "o\nfirst" }, { type: "textSmall", content: "third" }])
            select("o", 4, "third", 2)
            keyClick(row.key, row.modifiers)
            keyClick("X")
            compare(contents(), row.contents)
            press("Ctrl+Z Ctrl+Z")
            compare(contents(), "o\nfirst|third")
        }

        function test_aPictureIsCopiedCutAndPasted() {
            open([{ type: "textLarge", content: "first" }, { type: "image", picture: "gold" },
                { type: "textSmall", content: "third" }])
            bench.copy("kept")
            go(saying("first"), 5)
            press("Delete Ctrl+C")
            compare(kinds(), "textLarge image textSmall")
            verify(bench.copiedPicture())
            press("Ctrl+X")
            compare(kinds(), "textLarge textSmall textSmall")
            press("Ctrl+V")
            compare(kinds(), "textLarge textSmall image textSmall")
        }

        function test_aPictureIsPastedOverIt() {
            open(three())
            bench.copyPicture("gold")
            select("first", 2, "third", 3)
            press("Ctrl+V")
            compare(kinds(), "textLarge image")
            compare(contents(), "fird|")
        }

        function test_allOfItIsOfferedToTheMiddleButton() {
            open(three())
            select("first", 2, "third", 3)
            compare(bench.offered(), "rst\nsecond\nthi")
            go(saying("first"), 2)
            press("Shift+Down Shift+Down Shift+End")
            compare(bench.offered(), "rst\nsecond\nthird")
            press("Ctrl+A Ctrl+A")
            compare(bench.offered(), "first\nsecond\nthird")
        }

        function test_theMiddleButtonPastesWhereItIsLetGo() {
            open(three())
            bench.offer("x\u2028y")
            const place = saying("second").positionToRectangle(3)
            bench.releaseMiddleButton(saying("second"), Qt.point(place.x, place.y + place.height / 2))
            compare(contents(), "first|secx\u2028yond|third")
            keyClick("Z")
            compare(contents(), "first|secx\u2028yZond|third")
        }

        function test_shiftClickOnAPictureExtendsToAllOfIt_data() {
            return [
                { tag: "from above", from: "first", caret: 2, left: "fi|third" },
                { tag: "from below", from: "third", caret: 2, left: "first|ird" },
            ]
        }

        function test_shiftClickOnAPictureExtendsToAllOfIt(row) {
            open([{ type: "textLarge", content: "first" }, { type: "image", picture: "gold" },
                { type: "textSmall", content: "third" }])
            tryVerify(() => ItemTree.all(page).some(item => item instanceof BlockPicture && item.ready))
            const picture = ItemTree.all(page).find(item => item instanceof BlockPicture)
            go(saying(row.from), row.caret)
            for (const height of [0.25, 0.75]) {
                const there = picture.mapToItem(page, picture.width / 2, picture.height * height)
                mouseClick(page, there.x, there.y, Qt.LeftButton, Qt.ShiftModifier)
                compare(washed(), "image")
            }
            press("Delete")
            compare(contents(), row.left)
        }

        function test_anInputMethodTypesOverIt() {
            open(three())
            select("first", 2, "third", 3)
            bench.compose("ni")
            bench.commit("你")
            compare(contents(), "fi你rd")
        }

        function test_aSelectionOfEntriesJoinsThem() {
            open([{ type: "sticky", todos: [{ text: "milk", done: false }, { text: "rye", done: true }] }])
            select("milk", 2, "rye", 1)
            press("Delete")
            compare(bench.blocks()[0].todos, [{ done: false, text: "miye" }])
        }

        function test_aMenuLeavesTheSelection() {
            open(three())
            select("first", 2, "third", 2)
            press("Menu")
            tryVerify(() => ItemTree.all(page).some(item => item.Accessible.name === "Delete Block" && item.visible))
            press("Escape")
            tryVerify(() => !ItemTree.all(page).some(item => item.Accessible.name === "Delete Block" && item.visible))
            compare(selected(), "rst|second|th")
            press("Delete")
            compare(contents(), "fiird")
        }

        function test_theSelectionInOneTextGoesWhenAnotherIsEntered() {
            open(three())
            go(saying("first"), 0)
            press("Shift+End")
            compare(selected(), "first||")
            const there = pointAt(saying("third"), 3)
            mouseClick(page, there.x, there.y)
            compare(selected(), "||")
        }

        function test_walkingOnWithTabGivesTheSelectionUp() {
            open(three())
            select("first", 2, "third", 2)
            press("Tab")
            compare(selected(), "||")
        }

        function test_tabInCodeLeavesWhatWasSelectedInPlace() {
            open([{ type: "textSmall", content: "first" }, { type: "code", content: "code" }])
            select("first", 2, "code", 2)
            press("Tab")
            compare(contents(), "first|co\tde")
        }

        function test_undoBringsTheCaretBackToWhereTheSelectionEnded() {
            open(three())
            select("first", 2, "third", 3)
            press("Delete Ctrl+Z")
            compare(contents(), "first|second|third")
            keyClick("X")
            compare(contents(), "first|second|thiXrd")
        }

        function test_anEmptyTextInTheMiddleIsSeenSelected() {
            open([{ type: "textLarge", content: "first" }, { type: "textSmall" }, { type: "quote", content: "third" }])
            const sliver = () => ItemTree.all(fields()[1]).find(item => item.width === Metrics.space6 && item.color === FirePalette.selection)
            verify(!sliver().visible)
            select("first", 2, "third", 2)
            verify(sliver().visible)
        }
    }
}
