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

        readonly property int count: 5000
        readonly property int fewRows: 100
        property EditorView page

        name: "LongChecklist"
        when: windowShown

        function init() {
            const todos = []
            for (let entry = 0; entry < count; ++entry)
                todos.push({ text: "entry " + entry, done: false })
            bench.open([{ type: "textLarge", content: "Head" }, { type: "sticky", todos: todos },
                        { type: "textSmall", content: "foot" }])
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
        }

        function rows() {
            return ItemTree.all(page).filter(item => item as TodoRow)
        }

        function rowOf(entry) {
            return rows().find(row => row.text === "entry " + entry)
        }

        function topOf(row) {
            return row.mapToItem(page, 0, row.gap).y
        }

        function list() {
            return ItemTree.all(page).find(item => item as ListView)
        }

        function test_onlyEntriesInSightHaveRows() {
            verify(rows().length > 10)
            verify(rows().length < fewRows, rows().length + " rows")
            list().contentY += 60000
            waitForRendering(page)
            verify(rows().length < fewRows, rows().length + " rows")
            const shown = rows().filter(row => topOf(row) > 0 && topOf(row) < page.height).map(row => row.text)
            verify(shown.length > 10, shown)
        }

        function test_aJumpFromEndToEndMakesFewRows() {
            let most = 0
            const todos = ItemTree.all(page).find(item => item as StickyBlock).todos
            todos.rowsInserted.connect((parent, first, last) => most = Math.max(most, last - first + 1))
            keyClick(Qt.Key_End, Qt.ControlModifier)
            keyClick(Qt.Key_Up)
            waitForRendering(page)
            keyClick(Qt.Key_Home, Qt.ControlModifier)
            keyClick(Qt.Key_Down)
            waitForRendering(page)
            verify(most > 0)
            verify(most < fewRows, most + " rows at once")
        }

        function test_entriesStandOneBelowTheOther() {
            list().contentY += 60000
            waitForRendering(page)
            const tops = rows().map(row => topOf(row)).sort((a, b) => a - b)
            for (let row = 1; row < tops.length; ++row)
                compare(tops[row] - tops[row - 1], rows()[0].entryHeight)
        }

        function test_theEntryThatIsWrittenInStaysWhileAnotherPartIsInSight() {
            rowOf(3).takeFocus(-1)
            list().contentY += 60000
            waitForRendering(page)
            verify(rowOf(3).activeFocus)
            keyClick(Qt.Key_X)
            compare(bench.blocks()[1].todos[3].text, "entry 3x")
        }

        function test_theCaretGoesToAnEntryOutOfSight() {
            keyClick(Qt.Key_End, Qt.ControlModifier)
            compare(page.Window.activeFocusItem.getText(0, 99), "foot")
            keyClick(Qt.Key_Up)
            compare(page.Window.activeFocusItem.getText(0, 99), "entry " + (count - 1))
            keyClick(Qt.Key_Home, Qt.ControlModifier)
            keyClick(Qt.Key_Down)
            compare(page.Window.activeFocusItem.getText(0, 99), "entry 0")
        }

        function test_undoGoesBackToAnEntryOutOfSight() {
            rowOf(3).takeFocus(-1)
            keyClick(Qt.Key_X)
            keyClick(Qt.Key_End, Qt.ControlModifier)
            keyClick(Qt.Key_Up)
            verify(!rowOf("3x"))
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(page.Window.activeFocusItem.getText(0, 99), "entry 3")
            compare(bench.blocks()[1].todos[3].text, "entry 3")
        }
    }
}
