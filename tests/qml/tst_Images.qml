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

        name: "Images"
        when: windowShown

        function init() {
            Motion.reduced = true
        }

        function cleanup() {
            Motion.reduced = false
        }

        function open(blocks) {
            bench.open(blocks)
            page = createTemporaryObject(view, root)
            page.forceActiveFocus()
            bench.advance(0)
            waitForRendering(page)
            tryVerify(() => pictures().every(picture => picture.ready))
        }

        function named(name) {
            return ItemTree.all(page).filter(item => item.Accessible.name === name && item.visible)
        }

        function pictures() {
            return ItemTree.all(page).filter(item => item instanceof BlockPicture && item.visible && item.aspectRatio > 0)
        }

        function block(name) {
            return ItemTree.all(page).find(item => item instanceof BlockEditor && item.Accessible.name === name)
        }

        function kinds() {
            return bench.blocks().map(block => block.type).join(" ")
        }

        function type(text) {
            for (const letter of text)
                keyClick(letter)
        }

        function hover(item) {
            mouseMove(page, 5, 600)
            mouseMove(item, item.width / 2, 40)
        }

        function colorAt(item, x, y) {
            return String(grabImage(item).pixel(x, y))
        }

        function chooseFromMenu(item, entry) {
            mouseClick(item, item.width / 2, 40, Qt.RightButton)
            tryVerify(() => named(entry).length === 1)
            waitForRendering(page)
            mouseClick(named(entry)[0])
        }

        // The picture

        function test_aPictureIsAsWideAsTheColumnAndKeepsItsShape() {
            open([{ type: "image", picture: "red" }])
            const picture = pictures()[0]
            compare(picture.width, Metrics.measure)
            compare(picture.height, Metrics.measure / 2)
            tryVerify(() => colorAt(picture, 300, 150) === "#ff0000")
        }

        function test_aPictureIsShownFromTheBytesOfTheStore() {
            open([{ type: "image", picture: "red" }])
            verify(bench.sharesBytes(pictures()[0], 0))
        }

        function test_itsCornersAreRound() {
            open([{ type: "image", picture: "red" }])
            tryVerify(() => colorAt(pictures()[0], 300, 150) === "#ff0000")
            verify(colorAt(page, (page.width - Metrics.measure) / 2, Metrics.pageTop) !== "#ff0000")
        }

        function test_anotherPictureInTheSameBlockIsShown() {
            open([{ type: "image", picture: "red" }, { type: "textSmall", content: "b" }])
            const address = bench.editor.blocks.data(bench.editor.blocks.index(0, 0), Qt.UserRole)
            bench.editor.imageImport.addImage(address.blockID)
            bench.choosePicture("blue")
            tryVerify(() => colorAt(pictures()[0], 300, 150) === "#0000ff")
            bench.editor.undo()
            tryVerify(() => colorAt(pictures()[0], 300, 150) === "#ff0000")
        }

        // Adding

        function test_thePlaceholderAsksForAPictureAndShowsIt() {
            open([{ type: "textLarge", content: "t" }, { type: "image" }])
            const add = named("Add image")[0]
            compare(add.height, 100)
            mouseClick(add)
            verify(bench.editor.imageImport.showImagePicker)
            bench.choosePicture("blue")
            compare(named("Add image").length, 0)
            tryVerify(() => pictures().length === 1 && colorAt(pictures()[0], 300, 150) === "#0000ff")
        }

        function test_theKeyboardPressesThePlaceholder() {
            open([{ type: "textLarge", content: "" }, { type: "image" }])
            keyClick(Qt.Key_Tab)
            compare(page.Window.activeFocusItem.Accessible.name, "Add image")
            keyClick(Qt.Key_Return)
            verify(bench.editor.imageImport.showImagePicker)
        }

        function test_assistiveTechnologyPressesThePlaceholder() {
            open([{ type: "image" }])
            named("Add image")[0].Accessible.pressAction()
            verify(bench.editor.imageImport.showImagePicker)
        }

        function test_cancellingTheChooserChangesNothing() {
            open([{ type: "image" }])
            mouseClick(named("Add image")[0])
            bench.chooseNothing()
            compare(bench.blocks(), [{ content: "", type: "image" }])
            compare(named("Add image").length, 1)
            verify(!bench.editor.imageImport.showImagePicker)
        }

        function test_anUndecodableFileDrawsNothingYetCountsAs_data() {
            open([{ type: "textLarge", content: "t" }, { type: "image" }])
            mouseClick(named("Add image")[0])
            bench.choosePicture("this is no picture")
            compare(bench.blocks()[1].hasPicture, true)
            compare(named("Add image").length, 0)
            const undrawn = block("Image")
            hover(undrawn)
            tryVerify(() => named("Banner").length === 1)
            mouseClick(undrawn, 20, 20, Qt.RightButton)
            tryVerify(() => named("Full Width").length === 1)
        }

        function test_aCopiedPictureGoesBelowTheFocusedBlock() {
            open([{ type: "textLarge", content: "" }, { type: "textSmall", content: "b" }])
            bench.copyPicture("blue")
            keyClick(Qt.Key_V, Qt.ControlModifier)
            compare(kinds(), "textLarge image textSmall")
            tryVerify(() => pictures().length === 1 && colorAt(pictures()[0], 300, 150) === "#0000ff")
            type("x")
            compare(bench.blocks()[0].content, "x")
        }

        // Hover

        function test_hoveringAPictureOffersBannerAndDeleteInsideItsCorner() {
            open([{ type: "textLarge", content: "t" }, { type: "image", picture: "red" }])
            const picture = pictures()[0]
            hover(picture)
            tryVerify(() => named("Banner").length === 1 && named("Delete").length === 1)
            const remove = named("Delete")[0]
            const toggle = named("Banner")[0]
            compare(remove.mapToItem(picture, remove.width, 0), Qt.point(picture.width - 8, 8))
            verify(toggle.mapToItem(picture, toggle.width, 0).x < remove.mapToItem(picture, 0, 0).x)
        }

        function test_aBlockWithoutAPictureOffersNeitherBannerNorFullWidth() {
            open([{ type: "textLarge", content: "t" }, { type: "image" }])
            const add = named("Add image")[0]
            hover(add)
            tryVerify(() => named("Delete").length === 1)
            compare(named("Banner").length, 0)
            mouseClick(add, 20, 20, Qt.RightButton)
            tryVerify(() => named("Delete Block").length === 1)
            compare(named("Full Width").length, 0)
        }

        // Banner

        function test_theToggleMakesABannerWhoseTitleIsFocusedATenthOfASecondLater() {
            open([{ type: "textLarge", content: " " }, { type: "textSmall", content: "b" }, { type: "image", picture: "red" }])
            hover(pictures()[0])
            tryVerify(() => named("Banner").length === 1)
            mouseClick(named("Banner")[0])
            compare(kinds(), "image textSmall")
            compare(bench.blocks()[0].isFullWidth, true)
            bench.advance(99)
            verify(page.Window.activeFocusItem.Accessible.name !== "Banner title")
            bench.advance(1)
            compare(page.Window.activeFocusItem.Accessible.name, "Banner title")
            type("Ridge")
            compare(bench.blocks()[0].bannerTitle, "Ridge")
            compare(named("Ridge").length, 1)
        }

        function test_aBannerFillsTheWidthAtItsHeightBelowTheStrip() {
            open([{ type: "image", picture: "red", isFullWidth: true }, { type: "textSmall", content: "b" }])
            const banner = block("Banner")
            compare(banner.mapToItem(page, 0, 0), Qt.point(0, 56))
            compare(banner.width, page.width)
            compare(banner.height, 280)
            tryVerify(() => grabImage(page).red(450, 56 + 84) > 250)
            verify(grabImage(page).red(450, 56 + 270) < 90)
        }

        function test_withoutABannerThePageBeginsUnderTheStrip() {
            open([{ type: "image", picture: "red" }, { type: "textSmall", content: "b" }])
            compare(block("Image").mapToItem(page, 0, 0).y, Metrics.pageTop)
        }

        function test_aTitleStands24FromTheEdges() {
            open([{ type: "image", picture: "red", isFullWidth: true, bannerTitle: "Ridge" }])
            const banner = block("Banner")
            const title = named("Banner title")[0]
            compare(title.mapToItem(banner, 0, title.height), Qt.point(24, 280 - 24))
            compare(title.width, banner.width - 48)
        }

        function test_anUntitledBannerSaysSo() {
            open([{ type: "image", picture: "red", isFullWidth: true }])
            verify(ItemTree.all(block("Banner")).find(item => item.text === "Untitled" && item.visible))
        }

        function test_whatIsTypedIntoTheTitleIsUndoneAndDoneAgain() {
            open([{ type: "image", picture: "red", isFullWidth: true }, { type: "textSmall", content: "b" }])
            const before = bench.blocks()
            const title = named("Banner title")[0]
            title.forceActiveFocus()
            type("High up")
            compare(bench.blocks()[0].bannerTitle, "High up")
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(bench.blocks()[0].bannerTitle, "High ")
            compare(title.text, "High ")
            compare(title.cursorPosition, 5)
            verify(title.activeFocus)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(bench.blocks(), before)
            compare(title.text, "")
            keyClick(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier)
            keyClick(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier)
            compare(bench.blocks()[0].bannerTitle, "High up")
            verify(title.activeFocus)
            type("!")
            compare(title.text, "High up!")
        }

        function test_theTitleIsEditedInTheMiddle() {
            open([{ type: "image", picture: "red", isFullWidth: true, bannerTitle: "Rige" }])
            const title = named("Banner title")[0]
            title.forceActiveFocus()
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Left)
            type("d")
            compare(bench.blocks()[0].bannerTitle, "Ridge")
            compare(title.cursorPosition, 3)
            keyClick(Qt.Key_Backspace)
            compare(title.text, "Rige")
        }

        function test_returnLeavesTheTitleForTheNextBlock() {
            open([{ type: "image", picture: "red", isFullWidth: true }, { type: "textSmall", content: "" }])
            named("Banner title")[0].forceActiveFocus()
            keyClick(Qt.Key_Return)
            type("x")
            compare(bench.blocks()[1].content, "x")
            compare(bench.blocks()[0].bannerTitle, undefined)
        }

        function test_aFullWidthPictureFurtherDownIsAPictureInTheColumn() {
            open([{ type: "textSmall", content: "b" }, { type: "image", picture: "red", isFullWidth: true }])
            compare(pictures()[0].width, Metrics.measure)
            hover(pictures()[0])
            tryVerify(() => named("Unbanner").length === 1)
        }

        function test_unbannerGivesThePageItsHeadingBack() {
            open([{ type: "image", picture: "red", isFullWidth: true, bannerTitle: "Ridge" }])
            hover(block("Banner"))
            tryVerify(() => named("Unbanner").length === 1)
            mouseClick(named("Unbanner")[0])
            compare(kinds(), "textLarge image")
            compare(bench.blocks()[1].isFullWidth, false)
            compare(pictures()[0].width, Metrics.measure)
        }

        function test_theMenuSaysTheWidthItWouldHave_data() {
            return [
                { tag: "picture", isFullWidth: false, entry: "Full Width", after: true },
                { tag: "banner", isFullWidth: true, entry: "Default Width", after: false }
            ]
        }

        function test_theMenuSaysTheWidthItWouldHave(row) {
            open([{ type: "image", picture: "red", isFullWidth: row.isFullWidth }])
            mouseClick(pictures()[0], 300, 40, Qt.RightButton)
            tryVerify(() => named(row.entry).length === 1)
            compare(named("Delete Block").length, 0)
            mouseClick(named(row.entry)[0])
            compare(bench.blocks().find(block => block.type === "image").isFullWidth, row.after)
        }

        function test_theKeyboardWalksFromTheTitleToItsButtonsAndOn() {
            open([{ type: "image", picture: "red", isFullWidth: true }, { type: "textSmall", content: "b" }])
            named("Banner title")[0].forceActiveFocus()
            const seen = []
            for (let step = 0; step < 4; ++step) {
                seen.push(page.Window.activeFocusItem.Accessible.name)
                keyClick(Qt.Key_Tab)
            }
            compare(seen, ["Banner title", "Unbanner", "Delete", "Body"])
        }

        function test_aBannerAndBackIsUndoneInOneStep() {
            open([{ type: "textLarge", content: "" }, { type: "image", picture: "red" }])
            const before = bench.blocks()
            chooseFromMenu(pictures()[0], "Full Width")
            compare(kinds(), "image")
            bench.editor.undo()
            compare(bench.blocks(), before)
        }

        function test_thePictureGrowsIntoTheBanner() {
            Motion.reduced = false
            open([{ type: "image", picture: "red" }])
            const widths = []
            const picture = pictures()[0]
            picture.widthChanged.connect(() => widths.push(picture.width))
            chooseFromMenu(picture, "Full Width")
            tryCompare(picture, "width", page.width)
            verify(widths.some(width => width > Metrics.measure + 10 && width < page.width - 10), "on the way: " + widths)
        }
    }
}
