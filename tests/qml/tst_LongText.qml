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

        readonly property string words: "every word counts ".repeat(6000)
        readonly property string lines: "every word counts\n".repeat(4000)
        property EditorView page

        name: "LongText"
        when: windowShown

        /// Shows only the first slice of the text.
        function start(text) {
            bench.open([{ type: "textLarge", content: "Head" }, { type: "textSmall", content: text }])
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
        }

        function open(text) {
            start(text)
            waitForRendering(page)
            tryVerify(() => !field() || !isGrowing(), 20000)
        }

        function wholePaste(text) {
            bench.copy(text)
            keyClick(Qt.Key_V, Qt.ControlModifier)
        }

        function fields() {
            return ItemTree.all(page).filter(item => item.Accessible.role === Accessible.EditableText)
        }

        function field() {
            return fields().find(item => item.length > 1000)
        }

        function isGrowing() {
            return field().hiddenLength > 0
        }

        function shown() {
            return field().getText(0, field().length)
        }

        function stored() {
            return bench.blocks()[1].content
        }

        /// Where the first space is that is shown as a line break.
        function firstBreak() {
            return shown().indexOf("\n")
        }

        function go(caret) {
            field().cursorPosition = caret
            field().forceActiveFocus()
        }

        function test_itsParagraphsAreShort() {
            open(words)
            const longest = Math.max(...shown().split("\n").map(paragraph => paragraph.length))
            verify(longest <= 8000, longest)
            compare(shown().replace(/\n/g, " "), words)
        }

        function test_anOrdinaryTextIsShownAsItIs() {
            open("every word counts ".repeat(200))
            compare(shown(), stored())
        }

        function longTexts() {
            return [
                { tag: "words", text: words },
                { tag: "a megabyte of words", text: "every word counts ".repeat(58000) },
                { tag: "40 KB without a space", text: "abcdefghij".repeat(4000) },
                { tag: "lines and characters that are shown as others", text: "one two\r\nthree\u2028four\ufffc ".repeat(4000) },
            ]
        }

        function test_showingItChangesNothing_data() {
            return longTexts()
        }

        function test_showingItChangesNothing(row) {
            open(row.text)
            bench.advance(10000)
            const saves = bench.saves()
            const pageBefore = JSON.stringify(bench.blocks())
            bench.advance(10000)
            verify(stored() === row.text)
            verify(JSON.stringify(bench.blocks()) === pageBefore)
            compare(bench.saves(), saves)
        }

        function test_aLetterInItsMiddleChangesOnlyThatLetter_data() {
            return longTexts()
        }

        function test_aLetterInItsMiddleChangesOnlyThatLetter(row) {
            open(row.text)
            const middle = row.text.length / 2
            go(middle)
            keyClick(Qt.Key_X)
            verify(stored() === row.text.slice(0, middle) + "x" + row.text.slice(middle))
            compare(field().cursorPosition, middle + 1)
            keyClick(Qt.Key_Backspace)
            verify(stored() === row.text)
        }

        function test_theClipboardGetsTheStoredText() {
            open(words)
            go(0)
            keyClick(Qt.Key_A, Qt.ControlModifier)
            keyClick(Qt.Key_C, Qt.ControlModifier)
            verify(bench.copied() === words)
            bench.copy("")
            keyClick(Qt.Key_X, Qt.ControlModifier)
            verify(bench.copied() === words)
            compare(stored(), "")
            keyClick(Qt.Key_V, Qt.ControlModifier)
            verify(stored() === words)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(stored(), "")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            verify(stored() === words)
        }

        function test_theMiddleButtonGetsTheStoredText() {
            open(words)
            go(0)
            keyClick(Qt.Key_A, Qt.ControlModifier)
            tryVerify(() => bench.offered() === words)
            const place = firstBreak() - 1
            go(place)
            for (let step = 0; step < 3; ++step)
                keyClick(Qt.Key_Right, Qt.ShiftModifier)
            tryVerify(() => bench.offered() === words.slice(place, place + 3))
        }

        function test_aKeyAtABreakChangesWhatIsStoredThere_data() {
            return [
                { tag: "letter before it", key: Qt.Key_X, offset: 0, removed: 0, typed: "x" },
                { tag: "letter behind it", key: Qt.Key_X, offset: 1, removed: 0, typed: "x" },
                { tag: "space before it", key: Qt.Key_Space, offset: 0, removed: 0, typed: " " },
                { tag: "Backspace behind it", key: Qt.Key_Backspace, offset: 1, removed: 1, typed: "" },
            ]
        }

        function test_aKeyAtABreakChangesWhatIsStoredThere(row) {
            open(words)
            const place = firstBreak() + row.offset
            go(place)
            keyClick(row.key)
            verify(stored() === words.slice(0, place - row.removed) + row.typed + words.slice(place))
            compare(field().cursorPosition, place - row.removed + row.typed.length)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            verify(stored() === words)
            compare(shown().length, words.length)
        }

        function test_aTextCanBecomeLongAndShortAgain() {
            open("every word counts ".repeat(2000))
            go(10)
            bench.copy(words)
            keyClick(Qt.Key_V, Qt.ControlModifier)
            compare(stored().length, 36000 + words.length)
            verify(firstBreak() > 0)
            tryCompare(field(), "cursorPosition", 10 + words.length, 20000)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(stored().length, 36000)
            compare(shown(), stored())
        }

        function test_itGrowsWithoutChangingAnything() {
            start(lines)
            tryVerify(() => field())
            verify(field().length < lines.length)
            verify(isGrowing())
            tryVerify(() => !isGrowing(), 20000)
            verify(shown() === lines)
            verify(stored() === lines)
            compare(bench.saves(), 0)
        }

        function test_aLetterTypedInItsBeginningWaitsUntilItIsWhole() {
            start(lines)
            tryVerify(() => field())
            field().takeFocus(3)
            keyClick(Qt.Key_X)
            keyClick(Qt.Key_Y)
            tryVerify(() => !isGrowing(), 20000)
            tryVerify(() => stored() === lines.slice(0, 3) + "xy" + lines.slice(3))
            compare(field().cursorPosition, 5)
        }

        function test_aLongPasteIsStoredAtOnceAndOneStep() {
            open("one\ntwo")
            fields()[1].takeFocus(4)
            wholePaste(lines)
            verify(stored() === "one\n" + lines + "two")
            verify(isGrowing())
            tryVerify(() => !isGrowing(), 20000)
            verify(shown() === stored())
            compare(field().cursorPosition, 4 + lines.length)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(stored(), "one\ntwo")
            compare(fields()[1].getText(0, 100), "one\ntwo")
        }

        function test_keysBehindALongPasteGoWhereItEnds() {
            open("one\ntwo")
            fields()[1].takeFocus(4)
            wholePaste(lines)
            keyClick(Qt.Key_X)
            keyClick(Qt.Key_Y)
            keyClick(Qt.Key_Backspace)
            keyClick(Qt.Key_Return)
            keyClick(Qt.Key_Z)
            tryVerify(() => !isGrowing(), 20000)
            tryVerify(() => stored() === "one\n" + lines + "x")
            tryVerify(() => bench.blocks()[2].content === "ztwo")
        }

        function test_ctrlZTakesAPasteBackThatIsStillBeingShown() {
            open("one\ntwo")
            fields()[1].takeFocus(4)
            wholePaste(lines)
            verify(isGrowing())
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(stored(), "one\ntwo")
            compare(fields()[1].getText(0, 100), "one\ntwo")
            keyClick(Qt.Key_X)
            compare(stored(), "one\nxtwo")
        }

        function test_ctrlZTakesBackKeysThatWait() {
            open("one\ntwo")
            fields()[1].takeFocus(4)
            wholePaste(lines)
            keyClick(Qt.Key_X)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            tryVerify(() => !isGrowing(), 20000)
            verify(stored() === "one\n" + lines + "two")
        }

        function test_keysThatWaitAreKeptWhenThePageChanges() {
            open("one\ntwo")
            fields()[1].takeFocus(4)
            wholePaste(lines)
            keyClick(Qt.Key_X)
            bench.openAnother()
            verify(stored() === "one\n" + lines + "xtwo")
        }

        function test_keysThatWaitAreKeptWhenTheFocusGoes() {
            open("one\ntwo")
            fields()[1].takeFocus(4)
            wholePaste(lines)
            keyClick(Qt.Key_X)
            root.forceActiveFocus()
            verify(stored() === "one\n" + lines + "xtwo")
        }

        function test_aPasteOverSeveralBlocksIsShownInSlices() {
            open("one")
            fields()[1].takeFocus(3)
            wholePaste(lines)
            compare(bench.blocks()[1].content, "one" + lines.slice(0, lines.indexOf("\n")))
            verify(bench.blocks()[2].content === lines.slice(lines.indexOf("\n") + 1))
            keyClick(Qt.Key_X)
            tryVerify(() => bench.blocks()[2].content === lines.slice(lines.indexOf("\n") + 1) + "x", 20000)
        }

        function test_itTellsHowMuchIsShown() {
            start(lines.repeat(13))
            tryVerify(() => field())
            const notes = () => ItemTree.all(page).filter(item => item.visible && item.text?.startsWith("Showing a long text"))
            compare(notes().length, 0)
            ItemTree.all(page).find(item => item instanceof GrowthNote).patience = 50
            tryVerify(() => notes().length === 1, 20000)
            verify(/: [1-9][0-9]? %/.test(notes()[0].text), notes()[0].text)
            field().maximumHeight = 0
            tryVerify(() => notes().length === 0, 20000)
        }

        function test_oneThatIsTooTallIsCut() {
            start(lines)
            tryVerify(() => field())
            field().maximumHeight = 50000
            tryVerify(() => field().isCut, 20000)
            const length = field().length
            verify(length < lines.length)
            verify(ItemTree.all(page).some(item => item.visible && item.text?.includes("more characters are kept")))
            field().takeFocus(-1)
            compare(field().cursorPosition, length)
            keyClick(Qt.Key_X)
            verify(stored() === lines.slice(0, length) + "x" + lines.slice(length))
            keyClick(Qt.Key_Backspace)
            keyClick(Qt.Key_Delete)
            verify(stored() === lines)
            keyClick(Qt.Key_A, Qt.ControlModifier)
            keyClick(Qt.Key_C, Qt.ControlModifier)
            verify(bench.copied().endsWith(lines))
        }

        function test_aLineWithoutASpaceIsCut() {
            const line = "abcdefghij".repeat(20000)
            start(line)
            tryVerify(() => field()?.isCut, 20000)
            verify(field().length < 70000, field().length)
            go(1000)
            keyClick(Qt.Key_X)
            verify(stored() === line.slice(0, 1000) + "x" + line.slice(1000))
        }

        function test_aLongWordWrapsAnywhere() {
            open("abcdefghij".repeat(1000))
            compare(field().wrapMode, TextEdit.WrapAnywhere)
            go(0)
            field().selectAll()
            keyClick(Qt.Key_A)
            compare(stored(), "a")
        }
    }
}
