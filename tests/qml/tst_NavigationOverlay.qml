pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 1100
    height: 750

    Component {
        id: shell

        FocusScope {
            readonly property alias program: program
            readonly property alias alerts: alerts

            anchors.fill: parent
            focus: true

            MainView { anchors.fill: parent; focus: true; main: program.main }
            Alerts { id: alerts; anchors.fill: parent; main: program.main }
            CommandKeys { commands: program.main.commands }

            // Stands last so that it outlives the views.
            ShellFixture { id: program }
        }
    }

    TestCase {
        name: "NavigationOverlay"
        when: windowShown

        property var app
        property var root

        function init() {
            root = createTemporaryObject(shell, stage)
            app = root.program
            root.forceActiveFocus()
        }

        function focused() {
            return stage.Window.activeFocusItem
        }

        /// Every visible item below `item` that `wanted` says yes to.
        function all(item, wanted) {
            return ItemTree.all(item).filter(item => item.visible && wanted(item))
        }

        function named(name) {
            return all(root, item => item.name === name && item.Accessible.name === name)[0] ?? null
        }

        function overlay() {
            return all(root, item => item instanceof NavigationOverlay)[0] ?? null
        }

        function rows() {
            return all(root, item => item instanceof PageListRow)
        }

        function titles() {
            return rows().sort((a, b) => a.index - b.index).map(row => row.titleLine.text)
        }

        function chosen() {
            return rows().filter(row => row.chosen).map(row => row.titleLine.text).join()
        }

        function open() {
            keyClick(Qt.Key_K, Qt.ControlModifier)
            tryVerify(() => focused().name === "Find")
        }

        function library() {
            app.addPage("work", "First", "one kettle")
            app.addPage("work", "Second", "two hours")
            app.addPage("journal", "Diary", "the hour")
            app.addSpark("a quarter of an hour")
            app.open(0)
        }

        function test_quickSearchesAreNoTroubleForTheList() {
            for (let spark = 0; spark < 60; ++spark)
                app.addSpark("an hour of " + spark)
            library()
            for (let round = 0; round < 3; ++round) {
                open()
                for (const letter of ["h", "o", "u", "r", "q"]) {
                    keyClick(letter)
                    waitForRendering(root)
                }
                keyClick(Qt.Key_Escape)
                tryVerify(() => !overlay())
            }
        }

        function test_oneKeyOpensAndClosesIt() {
            library()
            open()
            verify(app.main.appState.showNav)
            compare(titles(), ["Second", "First"])
            compare(chosen(), "First")
            keyClick(Qt.Key_K, Qt.ControlModifier)
            verify(!app.main.appState.showNav)
            tryVerify(() => !overlay())
        }

        function test_rowsThatAreBeingMadeGiveWayToFewer_data() {
            return Array.from({ length: 12 }, (_, turns) => ({ tag: turns + " turns", turns }))
        }

        // The list makes the rows below its edge between two frames.
        function test_rowsThatAreBeingMadeGiveWayToFewer(row) {
            failOnWarning(/DelegateModel/)
            library()
            for (let i = 0; i < 40; ++i)
                app.addSpark("a quarter of an hour, and then the next: " + i)
            open()
            app.main.navigation.search("quarter")
            for (let turn = 0; turn < row.turns; ++turn)
                wait(1)
            app.main.navigation.search("")
            tryVerify(() => titles().length === 2)
        }

        function test_itLiesOverThePage_data() {
            return [{ tag: "alone", pageWidth: 1100, middle: 550 }, { tag: "beside a panel", pageWidth: 860, middle: 430 },
                { tag: "too narrow", pageWidth: 560, middle: 550 }]
        }

        function test_itLiesOverThePage(row) {
            library()
            open()
            overlay().pageWidth = row.pageWidth
            const field = focused()
            tryVerify(() => Math.abs(field.mapToItem(stage, field.width / 2, 0).x - row.middle) < 40)
        }

        function test_anAlmostInvisibleLayerLiesUnderIt() {
            library()
            open()
            const layer = all(overlay(), item => item.parent === overlay() && item.color !== undefined)[0]
            compare(layer.color, Qt.rgba(0, 0, 0, 0.01))
            compare([layer.width, layer.height], [stage.width, stage.height])
        }

        function test_itShowsTheGreeting() {
            open()
            verify(all(overlay(), item => item.text === app.main.topMessage && item instanceof Text)[0])
        }

        function test_theButtonBesideTheTitleOpensAndClosesIt() {
            library()
            tryVerify(() => all(root, item => item instanceof NavigationButton).length === 1)
            const button = named("Go to")
            compare(button.Accessible.role, Accessible.Button)
            mouseClick(button)
            verify(app.main.appState.showNav)
            verify(button.Accessible.checked)
            mouseClick(button)
            verify(!app.main.appState.showNav)
        }

        function test_theEmptyStateHasTheButtonToo() {
            mouseClick(named("Go to"))
            verify(app.main.appState.showNav)
        }

        function test_closingGivesTheCaretBack_data() {
            return [
                { tag: "Escape", close: () => keyClick(Qt.Key_Escape) },
                { tag: "the key that opened it", close: () => keyClick(Qt.Key_K, Qt.ControlModifier) },
                { tag: "a click beside it", close: () => mouseClick(root, 30, 400) }
            ]
        }

        function test_closingGivesTheCaretBack(row) {
            app.addPage("work", "Title", "some words")
            app.open(0)
            app.advance(1000)
            const field = all(root, item => item instanceof WritingField && item.text === "some words")[0]
            field.takeFocus(4)
            open()
            verify(!field.activeFocus)
            row.close()
            verify(field.activeFocus)
            compare(field.cursorPosition, 4)
            keyClick("x")
            compare(field.text, "somex words")
        }

        function test_typingFindsInAllSpaces() {
            library()
            open()
            "hour".split("").forEach(letter => keyClick(letter))
            compare(titles(), ["a quarter of an hour", "Diary", "Second"])
            verify(all(root, item => item instanceof SpaceCapsule).map(item => item.space).join() === "Ideas,Journal,Work")
            verify(all(overlay(), item => item.text === "3 hits, all spaces")[0])
            verify(!all(overlay(), item => item instanceof SpaceTabs)[0])
            keyClick(Qt.Key_Down)
            compare(chosen(), "Diary")
            keyClick(Qt.Key_Return)
            verify(!app.main.appState.showNav)
            compare(app.main.windowTitle, "Diary – Pelko")
        }

        function test_theFieldReadsOutWhatIsChosen() {
            library()
            open()
            compare(focused().Accessible.description, "First, Just now · 3 words, open")
            keyClick(Qt.Key_Up)
            compare(focused().Accessible.description, "Second, Just now · 3 words")
        }

        function test_rowsTellWhatTheyAre() {
            library()
            open()
            const row = rows()[0]
            compare(row.Accessible.role, Accessible.ListItem)
            compare(row.Accessible.name, "Second, Just now · 3 words")
            verify(rows().some(row => row.Accessible.selected))
        }

        function test_aClickOpensAPage() {
            library()
            open()
            mouseClick(rows().find(row => row.titleLine.text === "Second"))
            verify(!app.main.appState.showNav)
            compare(app.main.windowTitle, "Second – Pelko")
            tryVerify(() => all(root, item => item instanceof WritingField).length === 2)
            verify(!overlay() || !overlay().activeFocus)
        }

        function test_keysSwitchTheSpace() {
            library()
            keyClick(Qt.Key_3, Qt.ControlModifier)
            compare(app.main.windowTitle, "Diary – Pelko")
            open()
            keyClick(Qt.Key_1, Qt.ControlModifier)
            compare(titles(), ["a quarter of an hour"])
            verify(app.main.appState.showNav)
            verify(focused().name === "Find")
            keyClick(Qt.Key_2, Qt.ControlModifier)
            compare(titles(), ["Second", "First"])
        }

        function test_tabsTellTheirPlacesAndSwitchTheSpace() {
            library()
            open()
            const tabs = all(overlay(), item => item instanceof SpaceTab)
            compare(tabs.map(tab => [tab.Accessible.name, tab.pages, tab.Accessible.selected]),
                    [["Ideas", 1, false], ["Work", 2, true], ["Journal", 1, false]])
            verify(tabs.every(tab => tab.Accessible.role === Accessible.PageTab))
            compare(all(tabs[1], item => item instanceof CapacityDots)[0].taken, 2)
            mouseClick(tabs[2])
            compare(titles(), ["Diary"])
        }

        function test_tabsArePressedByKeysAndByAssistiveTechnology() {
            library()
            open()
            const tabs = all(overlay(), item => item instanceof SpaceTab)
            tabs[0].forceActiveFocus(Qt.TabFocusReason)
            keyClick(Qt.Key_Return)
            compare(titles(), ["a quarter of an hour"])
            tabs[2].Accessible.pressAction()
            compare(titles(), ["Diary"])
            tabs[2].Accessible.pressAction()
            compare(tabs.map(tab => [tab.Accessible.selected, tab.checked]), [[false, false], [false, false], [true, true]])
        }

        function test_anEmptySpaceSaysSo() {
            open()
            verify(all(overlay(), item => item.text === "No pages in Work yet")[0])
            keyClick(Qt.Key_Return)
            compare(app.documentCount(), 1)
            verify(!app.main.appState.showNav)
        }

        function test_aPageOpenedWhileItIsOpenTakesNoFocus() {
            library()
            open()
            keyClick(Qt.Key_3, Qt.ControlModifier)
            app.advance(1000)
            verify(focused().name === "Find")
            keyClick(Qt.Key_Escape)
            verify(!overlay() || !overlay().activeFocus)
            verify(root.activeFocus)
        }

        function test_aNewPageTakesTheCaret() {
            library()
            open()
            mouseClick(named("New Document"))
            compare(app.documentCount(), 5)
            verify(!app.main.appState.showNav)
            app.advance(1000)
            tryVerify(() => focused() instanceof WritingField)
            keyClick("x")
            compare(app.main.windowTitle, "x – Pelko")
        }

        function test_theLastRowMakesANewPage() {
            library()
            open()
            keyClick(Qt.Key_Down)
            verify(named("New Document").chosen)
            compare(all(overlay(), item => item.text === "three places left in Work").length, 1)
            keyClick(Qt.Key_Return)
            compare(app.documentCount(), 5)
        }

        function test_aFullSpaceShowsTheLimit() {
            app.createDocuments(5)
            open()
            mouseClick(named("New Document"))
            verify(app.main.appState.showDocLimitNudge)
            verify(app.main.appState.showNav)
            keyClick(Qt.Key_Return)
            verify(focused().name === "Find")
        }

        function test_deleteAsksFirst_data() {
            return [
                { tag: "Delete", ask: () => keyClick(Qt.Key_Delete) },
                { tag: "button", ask: () => mouseClick(named("Delete First")) },
                { tag: "button by keyboard", ask: () => {
                    while (focused().name !== "Delete First")
                        keyClick(Qt.Key_Tab)
                    keyClick(Qt.Key_Space)
                } }
            ]
        }

        function test_deleteAsksFirst(row) {
            library()
            open()
            row.ask()
            compare(app.main.deleteConfirmText, "Delete “First” for good?")
            verify(app.main.showDeleteConfirmation)
            verify(named("Nah").activeFocus)
            keyClick(Qt.Key_Return)
            compare(titles(), ["Second", "First"])
            row.ask()
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Return)
            tryVerify(() => titles().join() === "Second")
            compare(chosen(), "Second")
            verify(app.main.appState.showNav)
            verify(overlay().activeFocus)
            compare(app.main.windowTitle, "Second – Pelko")
        }

        function test_deleteEditsWhatIsTyped() {
            library()
            open()
            "hour".split("").forEach(letter => keyClick(letter))
            keyClick(Qt.Key_Home)
            keyClick(Qt.Key_Delete)
            verify(!app.main.showDeleteConfirmation)
            compare(app.main.navigation.query, "our")
        }

        function test_tabStaysInside() {
            library()
            open()
            const names = []
            do {
                names.push(focused().Accessible.name)
                keyClick(Qt.Key_Tab)
            } while (focused().name !== "Find" && names.length < 20)
            compare(names, ["Find", "Ideas", "Work", "Journal", "Delete First", "New Document"])
            keyClick(Qt.Key_Backtab)
            compare(focused().name, "New Document")
            keyClick(Qt.Key_Tab)
            compare(focused().name, "Find")
        }

        function test_undoIsNotThePages() {
            library()
            app.advance(1000)
            const fields = () => all(root, item => item instanceof WritingField && item.text === "one kettle")
            tryVerify(() => all(root, item => item instanceof EditorView).length === 1) // the others have faded
            tryVerify(() => fields().length === 1)
            const field = fields()[0]
            field.takeFocus(0)
            keyClick("x")
            open()
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            keyClick(Qt.Key_Y, Qt.ControlModifier)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            keyClick(Qt.Key_Escape)
            compare(field.text, "xone kettle")
        }

        function test_titlesOfAnyKind_data() {
            return [
                { tag: "10,000 letters", title: "word ".repeat(2000) },
                { tag: "line breaks", title: "one\ntwo\nthree" },
                { tag: "right to left", title: "שלום לכל העולם" },
                { tag: "emoji", title: "👩‍🚀🏳️‍🌈" }
            ]
        }

        function test_titlesOfAnyKind(row) {
            app.addPage("work", row.title, "")
            app.open(0)
            open()
            compare(rows().length, 1)
            compare(rows()[0].height, 48)
            verify(!rows()[0].titleLine.text.includes("\n"))
            verify(rows()[0].titleLine.text.length <= 121)
        }

        function test_theTickIsThereForAMoment() {
            app.createDocuments(1)
            const capsule = all(root, item => item instanceof TitleCapsule)[0]
            const narrow = capsule.width
            verify(!capsule.saved)
            app.advance(500)
            verify(capsule.saved)
            tryVerify(() => capsule.width > narrow)
            const tick = all(capsule, item => item.name === "checkmark")[0]
            verify(tick.Accessible.ignored)
            app.advance(1500)
            tryCompare(capsule, "width", narrow)
        }
    }
}
