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
        property ListView list

        /// Left of the text, where the grip is.
        readonly property int margin: 110

        name: "BlockDrag"
        when: windowShown

        function init() {
            Motion.reduced = true
        }

        function cleanup() {
            mouseRelease(page, margin, 300)
            mouseMove(page, 5, 5)
            Motion.reduced = false
        }

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(600)
            waitForRendering(page)
            list = ItemTree.all(page).find(item => item instanceof ListView)
        }

        function bodies(texts) {
            return texts.map(text => ({ type: "textSmall", content: text }))
        }

        function lines(count) {
            return bodies(Array.from({ length: count }, (_, i) => "line " + i))
        }

        function order() {
            return bench.blocks().map(block => block.content).join(" ")
        }

        function row(index) {
            return list.itemAtIndex(index)
        }

        function rowWith(text) {
            return ItemTree.all(list).find(item => item instanceof BlockRow && item.content === text)
        }

        /// Where the editor of a block is seen, glide included.
        function topOf(row) {
            return row.block.mapToItem(page, 0, 0).y
        }

        function middleOf(row) {
            return topOf(row) + row.block.height / 2
        }

        function lift(row) {
            const y = Math.max(topOf(row), Metrics.pageTop) + 8
            mousePress(page, margin, y)
            mouseMove(page, margin, y + 6)
            mouseMove(page, margin, y + 14)
        }

        function carryTo(y) {
            mouseMove(page, margin, y)
        }

        function letGo() {
            mouseRelease(page, margin, 300)
        }

        function test_aBlockIsCarriedOverOthersAndOnlyTheDropSaves() {
            open(bodies(["A", "B", "C", "D"]))
            const saves = bench.saves()
            lift(row(0))
            carryTo(middleOf(row(1)))
            compare(order(), "B A C D")
            carryTo(middleOf(row(2)))
            compare(order(), "B C A D")
            bench.advance(5000)
            compare(bench.saves(), saves)
            letGo()
            bench.advance(600)
            compare(order(), "B C A D")
            compare(bench.saves(), saves + 1)
            compare(bench.editor.drag.draggingBlockID, "")
        }

        function test_aBlockIsCarriedUp() {
            open(bodies(["A", "B", "C", "D"]))
            lift(row(3))
            carryTo(middleOf(row(1)))
            letGo()
            compare(order(), "A D B C")
        }

        /// As assistive technology goes through the page.
        function readingOrder() {
            return Array.from(list.contentItem.children).filter(item => item instanceof BlockRow)
                .map(row => row.content).join(" ")
        }

        function test_whatIsReadAloudFollowsTheOrderOfThePage() {
            open(bodies(["A", "B", "C", "D"]))
            lift(row(0))
            carryTo(middleOf(row(2)))
            letGo()
            tryVerify(() => readingOrder() === "B C A D")
            bench.editor.typed(row(1).address, "C\nE", 3)
            tryVerify(() => readingOrder() === "B C E A D")
        }

        function test_aPressInTheMarginAloneChangesNothing() {
            open(bodies(["A", "B"]))
            const saves = bench.saves()
            mouseClick(page, margin, middleOf(row(0)))
            bench.advance(600)
            compare(order(), "A B")
            compare(bench.saves(), saves)
        }

        function test_theMouseStillSelectsText() {
            open(bodies(["some words to select", "B", "C"]))
            const x = row(0).block.mapToItem(page, 0, 0).x
            mousePress(page, x + 5, middleOf(row(0)))
            mouseMove(page, x + 60, middleOf(row(0)))
            mouseMove(page, x + 120, middleOf(row(0)))
            verify(page.Window.activeFocusItem.selectedText !== "")
            compare(bench.editor.drag.draggingBlockID, "")
            mouseRelease(page, x + 120, middleOf(row(0)))
            compare(order(), "some words to select B C")
        }

        function test_aBlockWithoutTextIsTakenAnywhere_data() {
            return [{ tag: "divider" }, { tag: "sticky" }]
        }

        function test_aBlockWithoutTextIsTakenAnywhere(data) {
            open([{ type: data.tag, todos: [] }].concat(bodies(["A", "B"])))
            const x = page.width / 2
            const below = middleOf(row(1))
            mousePress(page, x, topOf(row(0)))
            mouseMove(page, x, below - 1)
            mouseMove(page, x, below)
            mouseRelease(page, x, below)
            compare(bench.blocks().map(block => block.type), ["textSmall", data.tag, "textSmall"])
        }

        function test_escapePutsTheBlockBack() {
            open(bodies(["A", "B", "C", "D"]))
            const saves = bench.saves()
            lift(row(0))
            carryTo(middleOf(row(2)))
            keyClick(Qt.Key_Escape)
            compare(order(), "A B C D")
            carryTo(middleOf(row(3)))
            letGo()
            compare(order(), "A B C D")
            bench.advance(600)
            compare(bench.saves(), saves)
        }

        function test_oneBlockAloneStaysWhereItIs() {
            open(bodies(["A"]))
            lift(row(0))
            compare(bench.editor.drag.draggingBlockID, "")
        }

        function test_theDraggedBlockIsDimmedAndCarriedInFull() {
            Motion.reduced = false
            open(bodies(["A", "B", "C"]))
            const dragged = row(0)
            const body = dragged.block.parent
            lift(dragged)
            verify(dragged.lifted)
            verify(body.opacity > 0.9)
            tryCompare(body, "opacity", Metrics.liftedOpacity)
            const card = ItemTree.all(page).find(item => item instanceof LiftedBlock)
            const picture = ItemTree.all(card).find(item => item instanceof Image)
            tryCompare(picture, "status", Image.Ready)
            compare(picture.width, dragged.block.width)
            verify(card.visible)
            letGo()
            tryCompare(body, "opacity", 1)
            tryCompare(card, "visible", false)
        }

        function test_thePointerShowsAMoveForAsLongAsTheDragLasts() {
            open(bodies(["A", "B", "C"]))
            mouseMove(page, margin, middleOf(row(2)))
            verify(bench.cursorOf(page) !== Qt.DragMoveCursor)
            lift(row(0))
            carryTo(middleOf(row(1)))
            tryVerify(() => bench.cursorOf(page) === Qt.DragMoveCursor)
            letGo()
            tryVerify(() => bench.cursorOf(page) !== Qt.DragMoveCursor)
        }

        function test_rowsGlideToTheirNewPlacesAndDoNotJump() {
            Motion.reduced = false
            open([{ type: "code", content: "1\n2\n3\n4" }].concat(bodies(["B", "C", "D"])))
            const before = [0, 1, 2, 3].map(index => topOf(row(index)))
            const rows = [0, 1, 2, 3].map(index => row(index))
            bench.editor.moveBlock(rows[0].blockID, 2)
            wait(0)
            compare(list.itemAtIndex(2), rows[0])
            fuzzyCompare(topOf(rows[0]), before[0], 40)
            fuzzyCompare(topOf(rows[1]), before[1], 40)
            fuzzyCompare(topOf(rows[3]), before[3], 1)
            tryVerify(() => rows.every(row => row.block.parent.parent.transform[0].y === 0))
            compare(topOf(rows[1]), before[0])
            verify(topOf(rows[0]) > topOf(rows[2]))
        }

        function test_textThatGrowsMovesWhatIsBelowAtOnce() {
            Motion.reduced = false
            open(bodies(["A", "B"]))
            const below = topOf(row(1))
            bench.editor.typed(row(0).address, "word ".repeat(60), 300)
            waitForRendering(page)
            const slide = row(1).transform[0]
            compare(slide.y, 0)
            verify(topOf(row(1)) > below + 20)
        }

        function test_atTheEdgeThePageScrollsUnderTheDrag() {
            open(lines(80))
            lift(row(0))
            carryTo(page.height - Metrics.barHeight - 4)
            tryVerify(() => list.contentY > 1200)
            letGo()
            const place = bench.blocks().findIndex(block => block.content === "line 0")
            verify(place > 25)
            verify(rowWith("line 0"))
        }

        function test_andBackUpToTheBeginning() {
            open(lines(80))
            list.positionViewAtEnd()
            lift(row(79))
            carryTo(Metrics.stripHeight)
            tryVerify(() => list.atYBeginning, 20000)
            carryTo(2)
            letGo()
            compare(bench.blocks()[0].content, "line 79")
        }

        function test_aDragOutlivesItsRow() {
            open(lines(80))
            lift(row(0))
            list.positionViewAtIndex(60, ListView.Beginning)
            tryVerify(() => list.itemAtIndex(0) === null)
            carryTo(middleOf(row(65)))
            letGo()
            compare(bench.blocks()[65].content, "line 0")
        }

        function test_aDragOutlivesItsBlock() {
            open(bodies(["A", "B", "C"]))
            lift(row(0))
            bench.replace(bodies(["X", "Y"]))
            waitForRendering(page)
            carryTo(middleOf(row(1)))
            letGo()
            compare(order(), "X Y")
        }

        function test_aBlockTallerThanTheViewIsCarried_data() {
            const items = Array.from({ length: 60 }, (_, i) => ({ text: "item " + i, done: false }))
            return [
                { tag: "checklist", block: { type: "sticky", todos: items } },
                { tag: "code", block: { type: "code", content: "line\n".repeat(90) } },
            ]
        }

        function test_aBlockTallerThanTheViewIsCarried(data) {
            open(bodies(["A", "B"]).concat([data.block]))
            verify(row(2).height > page.height)
            lift(row(2))
            carryTo(middleOf(row(0)))
            letGo()
            compare(bench.blocks().map(block => block.type), [data.block.type, "textSmall", "textSmall"])
        }

        function test_andDownPastWhatFollows() {
            open([{ type: "code", content: "line\n".repeat(90) }].concat(lines(40)))
            list.positionViewAtBeginning()
            lift(row(0))
            carryTo(page.height - Metrics.barHeight - 4)
            tryVerify(() => bench.blocks()[0].content === "line 0", 20000)
            letGo()
        }

        function test_altAndAnArrowMoveTheBlockWithItsCaret() {
            open(bodies(["A", "BB", "C"]))
            mouseClick(row(1).block, 2, 10)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Down, Qt.AltModifier)
            compare(order(), "A C BB")
            keyClick(Qt.Key_Down, Qt.AltModifier)
            compare(order(), "A C BB")
            keyClick(Qt.Key_Up, Qt.AltModifier)
            keyClick(Qt.Key_Up, Qt.AltModifier)
            compare(order(), "BB A C")
            keyClick("x")
            compare(order(), "BxB A C")
            const saves = bench.saves()
            bench.advance(600)
            compare(bench.saves(), saves + 1)
        }

        function test_altAndAnArrowInAChecklistMoveTheWholeOfIt() {
            open(bodies(["A"]).concat([{ type: "sticky", todos: [{ text: "milk", done: false }] }]))
            const field = ItemTree.all(page).find(item => item.Accessible.name === "milk" && item.selectedText === "")
            field.forceActiveFocus()
            keyClick(Qt.Key_Up, Qt.AltModifier)
            compare(bench.blocks().map(block => block.type), ["sticky", "textSmall"])
            verify(field.activeFocus)
        }

        function test_aBlockMovedByKeysStaysInSight() {
            open(lines(40))
            mouseClick(row(0).block, 2, 10)
            for (let step = 0; step < 30; ++step)
                keyClick(Qt.Key_Down, Qt.AltModifier)
            compare(bench.blocks()[30].content, "line 0")
            tryVerify(() => topOf(row(30)) + row(30).block.height < page.height - Metrics.barHeight)
            keyClick("x")
            compare(bench.blocks()[30].content.length, "line 0x".length)
        }

        function grips() {
            return ItemTree.all(page).filter(item => item instanceof BlockGrip && item.visible)
        }

        function test_theGripShowsUnderThePointerAndOpensTheMenu() {
            open(bodies(["A", "B"]))
            compare(grips().length, 0)
            mouseMove(page, 5, middleOf(row(0)))
            mouseMove(page, margin, middleOf(row(0)))
            tryVerify(() => grips().length === 1)
            tryCompare(grips()[0], "opacity", 1)
            compare(grips()[0].Accessible.name, "Move Block")
            mouseClick(grips()[0])
            tryVerify(() => ItemTree.all(page).some(item => item.Accessible.name === "Delete Block" && item.visible))
            keyClick(Qt.Key_Escape)
        }

        function test_theOnlyBlockHasNoGrip() {
            open(bodies(["A"]))
            mouseMove(page, 5, middleOf(row(0)))
            mouseMove(page, margin, middleOf(row(0)))
            waitForRendering(page)
            compare(grips().length, 0)
        }

        function test_theGripTakesItsBlockWhenItIsPulled() {
            open(bodies(["A", "B"]))
            mouseMove(page, 5, middleOf(row(0)))
            mouseMove(page, margin, middleOf(row(0)))
            tryVerify(() => grips().length === 1)
            const grip = grips()[0].mapToItem(page, 11, 13)
            const below = middleOf(row(1))
            mousePress(page, grip.x, grip.y)
            mouseMove(page, grip.x, below - 1)
            mouseMove(page, grip.x, below)
            mouseRelease(page, grip.x, below)
            compare(order(), "B A")
            verify(!ItemTree.all(page).some(item => item.Accessible.name === "Delete Block" && item.visible))
        }

        function test_whatIsDroppedFromElsewhereChangesNothing_data() {
            return [
                { tag: "text", format: "text/plain" },
                { tag: "files", format: "text/uri-list" },
            ]
        }

        function test_whatIsDroppedFromElsewhereChangesNothing(data) {
            open(bodies(["A", "B"]))
            const place = row(1).block.mapToItem(null, 10, 10)
            compare(bench.dropFromElsewhere(page, place, data.format, "file:///tmp/words.txt"), false)
            compare(order(), "A B")
        }
    }
}
