pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

/// What fcitx5 and ibus send, in every field that can be written in.
Item {
    id: root

    width: 900
    height: 640

    EditorFixture { id: bench }
    InputMethodFixture { id: inputMethod }
    TimersFixture { id: timers }
    TasksFixture { id: tasks }
    ShellFixture { id: program }

    FocusScope {
        id: stage

        anchors.fill: parent
    }

    Item {
        id: elsewhere

        activeFocusOnTab: true
    }

    Component {
        id: page

        EditorView {
            anchors.fill: parent
            editor: bench.editor
            focus: true
        }
    }

    Component {
        id: capture

        CaptureSection {
            panel: timers.panel
            width: 300
        }
    }

    Component {
        id: quickAdd

        QuickAddField {
            panel: tasks.tasks.panel
            width: 300
        }
    }

    Component {
        id: search

        SearchField {
            navigation: program.main.navigation
            width: 300
        }
    }

    TestCase {
        id: test

        /// Returns what is stored of the text of the field under test.
        property var stored
        property Item field

        name: "InputMethods"
        when: windowShown

        function isField(item) {
            return (item instanceof TextEdit || item instanceof TextInput) && item.visible
        }

        function openBlock(block, textOf) {
            bench.open([block])
            stored = () => textOf(bench.blocks()[0])
            return createTemporaryObject(page, stage)
        }

        function openField(kind) {
            switch (kind) {
            case "body": return openBlock({ type: "textSmall" }, block => block.content)
            case "heading": return openBlock({ type: "textLarge" }, block => block.content)
            case "code": return openBlock({ type: "code" }, block => block.content)
            case "entry": return openBlock({ type: "sticky", todos: [{ text: "", done: false }] }, block => block.todos[0].text)
            case "banner": return openBlock({ type: "image", picture: "red", isFullWidth: true, bannerTitle: "" },
                                            block => block.bannerTitle)
            case "capture":
                stored = () => timers.panel.quickNote
                return createTemporaryObject(capture, stage)
            case "quick add":
                stored = () => tasks.tasks.panel.newTaskText
                return createTemporaryObject(quickAdd, stage)
            case "search":
                stored = () => program.main.navigation.query
                return createTemporaryObject(search, stage)
            }
        }

        function open(kind) {
            const view = openField(kind)
            bench.advance(0)
            waitForRendering(view)
            field = ItemTree.all(view).find(isField)
            field.forceActiveFocus()
            verify(field.activeFocus)
            compare(stored(), "")
        }

        function cleanup() {
            field = null
            timers.panel.typed("")
            tasks.tasks.panel.typed("")
            program.main.navigation.search("")
        }

        function initTestCase() {
            tasks.add("Page")
            tasks.tasks.toggle()
        }

        function type(text) {
            for (const letter of text)
                keyClick(letter)
        }

        function kinds() {
            return ["body", "heading", "code", "entry", "banner", "capture", "quick add", "search"]
                .map(kind => ({ tag: kind, kind }))
        }

        /// A word as fcitx5 sends it: what is composed, the word, and then once more that nothing is composed.
        function write(preedit, word) {
            for (let end = 1; end <= preedit.length; ++end)
                inputMethod.compose(preedit.slice(0, end))
            inputMethod.commit(word)
            inputMethod.compose("")
        }

        function test_whatIsTypedAfterACommitIsStored_data() { return kinds() }

        function test_whatIsTypedAfterACommitIsStored(row) {
            open(row.kind)
            write("nihon", "日本")
            compare(stored(), "日本")
            type("ab")
            compare(stored(), "日本ab")
            write("go", "語")
            compare(stored(), "日本ab語")
            type("c")
            compare(stored(), "日本ab語c")
            keyClick(Qt.Key_Backspace)
            compare(stored(), "日本ab語")
        }

        function test_aCommitCanReplaceWhatStandsBeforeTheCaret_data() { return kinds() }

        function test_aCommitCanReplaceWhatStandsBeforeTheCaret(row) {
            open(row.kind)
            type("abc")
            inputMethod.commitReplacing("的", -2, 2)
            compare(stored(), "a的")
        }

        function test_aCancelledCompositionLeavesNothing_data() { return kinds() }

        function test_aCancelledCompositionLeavesNothing(row) {
            open(row.kind)
            type("a")
            inputMethod.compose("ni")
            inputMethod.compose("")
            type("b")
            compare(stored(), "ab")
        }

        function test_aCompositionIsKeptWhenTheFocusLeaves_data() { return kinds() }

        function test_aCompositionIsKeptWhenTheFocusLeaves(row) {
            open(row.kind)
            type("a")
            inputMethod.compose("ni")
            elsewhere.forceActiveFocus()
            compare(stored(), "ani")
            compare(field.preeditText, "")
        }

        function test_returnEndsACompositionAndNothingElse_data() { return kinds() }

        function test_returnEndsACompositionAndNothingElse(row) {
            open(row.kind)
            for (const key of [Qt.Key_Return, Qt.Key_Enter]) {
                inputMethod.compose("ni")
                keyClick(key)
                verify(field.activeFocus)
            }
            compare(stored(), "nini")
            compare(field.preeditText, "")
        }

        function test_aClickKeepsAComposition_data() { return kinds() }

        function test_aClickKeepsAComposition(row) {
            open(row.kind)
            type("ab")
            inputMethod.compose("ni")
            mouseClick(field, 1, field.height / 2)
            compare(stored(), "abni")
        }

        function test_returnIsItselfAgainAfterACommit_data() {
            return [{ tag: "body", blocks: 2 }, { tag: "heading", blocks: 2 }, { tag: "entry", todos: 2 }]
        }

        function test_returnIsItselfAgainAfterACommit(row) {
            open(row.tag)
            write("nihon", "日本")
            keyClick(Qt.Key_Return)
            compare(stored(), "日本")
            compare(bench.blocks().length, row.blocks ?? 1)
            compare(bench.blocks()[0].todos?.length, row.todos)
            type("x")
            compare(bench.blocks()[row.blocks - 1 || 0].todos?.[1].text ?? bench.blocks()[1].content, "x")
        }

        function test_returnLeavesABannerTitleAfterACommit() {
            open("banner")
            write("nihon", "日本")
            keyClick(Qt.Key_Return)
            verify(!field.activeFocus)
            compare(stored(), "日本")
        }

        function test_tabInCodeEndsACompositionAndNothingElse() {
            open("code")
            inputMethod.compose("ni")
            keyClick(Qt.Key_Tab)
            compare(stored(), "ni")
            keyClick(Qt.Key_Tab)
            compare(stored(), "ni\t")
        }

        function test_undoTakesBackWhatWasBeingComposed() {
            open("body")
            type("a ")
            inputMethod.compose("ni")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(field.preeditText, "")
            compare(stored(), "a ")
            keyClick(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier)
            compare(stored(), "a ni")
        }

        function test_aSelectionWithShiftKeepsAComposition_data() {
            return [{ tag: "over text", x: 0.5 }, { tag: "beside text", x: 0.01 }]
        }

        function test_aSelectionWithShiftKeepsAComposition(row) {
            open("body")
            bench.editor.addBlock("quote")
            bench.advance(200)
            field.forceActiveFocus()
            type("ab")
            inputMethod.compose("ni")
            const view = stage.children[stage.children.length - 1]
            const other = ItemTree.all(view).filter(isField)[1]
            const place = other.mapToItem(view, 0, other.height / 2)
            mouseClick(view, row.x * view.width, place.y, Qt.LeftButton, Qt.ShiftModifier)
            compare(bench.blocks().map(block => block.type + " " + block.content), ["textSmall abni", "quote "])
        }

        function test_aChangeByAnotherWayFollowsAComposition_data() {
            return [
                { tag: "a block is added", change: () => bench.editor.addBlock("divider"), last: "divider" },
                { tag: "the block is deleted", change: id => bench.editor.deleteBlock(id), last: "quote" },
                { tag: "the block is moved", change: id => bench.editor.moveBlock(id, 1), last: "textSmall" },
            ]
        }

        /// One step takes the change back, and the word stays.
        function test_aChangeByAnotherWayFollowsAComposition(row) {
            open("body")
            bench.editor.addBlock("quote")
            field.forceActiveFocus()
            inputMethod.compose("ni")
            row.change(bench.editor.focusedBlockID)
            compare(bench.blocks().pop().type, row.last)
            bench.editor.undo()
            compare(stored(), "ni")
            compare(bench.blocks().map(block => block.type), ["textSmall", "quote"])
        }

        function test_aCompositionReplacesWhatIsSelected() {
            open("body")
            type("abc")
            field.select(1, 2)
            write("ni", "你")
            compare(stored(), "a你c")
        }

        function test_aShortcutWorksInACommit() {
            open("body")
            write("[] ", "[] ")
            compare(bench.blocks()[0].type, "sticky")
        }
    }
}
