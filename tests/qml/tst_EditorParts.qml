import QtQuick
import QtTest
import Pelko
import PelkoTest

/// The parts around the texts of a page: symbols, captions, sizes and colours.
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

    Component {
        id: titleCapsule

        TitleCapsule {
            maximumWidth: 300
            title: "A page"
        }
    }

    TestCase {
        id: test

        property EditorView page

        name: "EditorParts"
        when: windowShown

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
        }

        function shown(item, fits) {
            return ItemTree.all(item).filter(item => item.visible && fits(item))
        }

        function symbols(item) {
            return shown(item, item => item instanceof SymbolIcon)
        }

        function text(item, words) {
            return shown(item, item => item instanceof Text && item.text === words)[0]
        }

        function control(name) {
            return shown(page, item => item instanceof PressableControl && item.name === name)[0]
        }

        function test_theBarHasAChipForEachKind() {
            open([{ type: "textLarge", content: "t" }])
            const chips = shown(page, item => item instanceof IconChipButton)
            compare(chips.map(chip => chip.tip),
                    ["Heading", "Body", "Quote", "Code", "Divider", "Image", "Checklist"])
            compare(chips.map(chip => symbols(chip)[0].name),
                    ["textformat.size.larger", "text.alignleft", "text.quote",
                     "chevron.left.forwardslash.chevron.right", "minus", "photo", "checklist"])
            verify(chips.every(chip => chip.height === 28))
        }

        function test_aChecklistHasAHeader() {
            open([{ type: "sticky", todos: [{ text: "milk", done: false }] }])
            const header = shown(page, item => item instanceof StickyHeader)[0]
            compare(symbols(header).map(symbol => symbol.name), ["checklist"])
            verify(text(header, "Sticky"))
        }

        function test_anEntryIsATickItsTextAndACross() {
            open([{ type: "sticky", todos: [{ text: "milk", done: false }, { text: "tea", done: true }] }])
            const ticks = shown(page, item => item instanceof TodoToggle)
            compare(ticks.map(tick => symbols(tick)[0].name), ["circle", "checkmark.circle.fill"])
            mouseMove(ticks[0], 5, 5)
            tryVerify(() => control("Remove") !== undefined)
            compare(symbols(control("Remove")).map(symbol => symbol.name), ["xmark"])
        }

        function test_anImageBlockWithoutAPictureIsAPanel() {
            open([{ type: "textLarge", content: "t" }, { type: "image" }])
            const panel = control("Add image")
            compare(panel.height, 100)
            compare(panel.background.radius, 8)
            const symbol = symbols(panel)[0]
            compare(symbol.name, "photo")
            compare(symbol.size, 14)
            compare(text(panel, "Add image").font, Typography.message)
            compare(Math.round(Typography.message.pointSize * Typography.pixelsPerPoint()), 13)
        }

        function test_aNewBlockGrowsIn() {
            open([{ type: "textLarge", content: "t" }])
            bench.editor.addBlock("textSmall")
            const row = shown(page, item => item instanceof BlockRow && item.index === 1)[0]
            tryVerify(() => row.growth < 1)
            verify(row.block.parent.opacity < 1)
            const height = row.height
            tryCompare(row, "growth", 1)
            tryCompare(row.block.parent, "opacity", 1)
            verify(row.height > height)
        }

        function test_nothingMovesWithTheFirstLetter_data() {
            return [
                { tag: "heading", block: { type: "textLarge" } },
                { tag: "body", block: { type: "textSmall" } },
                { tag: "quote", block: { type: "quote" } },
                { tag: "code", block: { type: "code" } },
                { tag: "entry", block: { type: "sticky", todos: [{ text: "", done: false }] } },
            ]
        }

        function test_nothingMovesWithTheFirstLetter(row) {
            open([row.block, { type: "textSmall", content: "below" }])
            const fields = shown(page, item => item instanceof WritingField)
            const below = fields[1].mapToItem(page, 0, 0).y
            fields[0].forceActiveFocus()
            keyClick("x")
            waitForRendering(page)
            compare(fields[1].mapToItem(page, 0, 0).y, below)
            keyClick(Qt.Key_Backspace)
            waitForRendering(page)
            compare(fields[1].mapToItem(page, 0, 0).y, below)
        }

        function test_deletingIsMarkedInTheMenu() {
            open([{ type: "textLarge", content: "t" }, { type: "textSmall", content: "b" }])
            const field = shown(page, item => item instanceof WritingField)[1]
            mouseClick(field, 20, 10, Qt.RightButton)
            tryVerify(() => shown(page, item => item instanceof PopupMenuRow).length === 1)
            const row = shown(page, item => item instanceof PopupMenuRow)[0]
            compare(row.name, "Delete Block")
            compare(row.ink, FirePalette.destructive)
            compare(symbols(row).map(symbol => symbol.name), ["trash"])
            compare(symbols(row)[0].color, FirePalette.destructive)
        }

        function test_theTitleStandsBesideADot() {
            const capsule = createTemporaryObject(titleCapsule, root)
            const dot = shown(capsule, item => item instanceof Rectangle && Qt.colorEqual(item.color, FirePalette.amber))[0]
            compare([dot.width, dot.height, dot.radius], [4, 4, 2])
            compare(text(capsule, "A page").font, Typography.capsule)
            compare(text(capsule, "A page").color, FirePalette.white(0.8))
            compare(capsule.height, 26)
        }

        function test_theTitleIsElided() {
            const capsule = createTemporaryObject(titleCapsule, root, { title: "A page with a name ".repeat(9) })
            compare(capsule.width, 300)
            verify(shown(capsule, item => item instanceof Text)[0].truncated)
        }

        function test_theTitleShowsSavedAndNotSaved() {
            const capsule = createTemporaryObject(titleCapsule, root)
            compare(symbols(capsule).length, 0)
            capsule.saved = true
            tryVerify(() => symbols(capsule).map(symbol => symbol.name).join() === "checkmark")
            capsule.saveError = "The disk is full."
            tryVerify(() => symbols(capsule).map(symbol => symbol.name).join() === "exclamationmark.triangle")
            compare(symbols(capsule)[0].Accessible.name, "Not saved")
            compare(symbols(capsule)[0].Accessible.description, "The disk is full.")
        }
    }
}
