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
            readonly property alias unsavedAlerts: unsavedAlerts

            anchors.fill: parent
            focus: true

            MainView { anchors.fill: parent; focus: true; main: program.main }
            CommandKeys { commands: program.main.commands }
            Alerts { id: alerts; anchors.fill: parent; main: program.main }
            UnsavedAlerts { id: unsavedAlerts; anchors.fill: parent; main: program.main }

            // Stands last so that it outlives the views.
            ShellFixture { id: program }
        }
    }

    TestCase {
        id: test

        name: "Shell"
        when: windowShown

        property var app
        property var root

        SignalSpy { id: requests; target: test.app?.main.commands ?? null; signalName: "fullScreenToggled" }

        function init() {
            root = createTemporaryObject(shell, stage)
            app = root.program
            root.forceActiveFocus()
        }

        // The first visible item below `item` that answers to `name`.
        function named(item, name) {
            return accessiblyNamed(item, name, item => item.name === name)
        }

        function accessiblyNamed(item, name, fits = () => true) {
            return ItemTree.all(item).find(item => item.visible && item.Accessible.name === name && fits(item)) ?? null
        }

        function reading(item, text) {
            return ItemTree.all(item).find(item => item.visible && item.text === text) ?? null
        }

        function test_emptyStateSaysItsLineAndOffersToWrite() {
            verify(reading(root, app.main.emptyMessage))
            const button = named(root, "Start Writing")
            compare(button.Accessible.role, Accessible.Button)
            verify(button.activeFocus)
        }

        function test_startWritingByKeyboardOpensAPage() {
            keyClick(Qt.Key_Return)
            compare(app.documentCount(), 1)
            tryVerify(() => !named(root, "Start Writing"))
            verify(named(root, "Heading"))
        }

        function test_startWritingByPointer() {
            mouseClick(named(root, "Start Writing"))
            compare(app.documentCount(), 1)
        }

        function test_anotherPageReplacesTheFirst() {
            app.createDocuments(2)
            app.open(0)
            app.open(1)
            app.closeDocument()
            tryVerify(() => named(root, "Start Writing") && !named(root, "Heading"))
        }

        /// Where the window can be dragged, from top to bottom; those that a double click maximises are marked.
        function dragAreas() {
            return ItemTree.all(root).filter(item => item instanceof WindowDragArea && item.visible).map(item => {
                const place = item.mapToItem(root, 0, 0)
                return [place.x, place.y, item.width, item.height].join(" ") + (item.maximises ? " maximises" : "")
            })
        }

        function test_theWindowIsDraggedByItsGround() {
            compare(dragAreas(), ["0 0 1100 750", "0 0 1100 " + Metrics.stripHeight + " maximises"])
            app.createDocuments(1)
            app.open(0)
            const bar = () => ItemTree.all(root).find(item => item instanceof BlockBar && item.opacity === 1)
            tryVerify(() => dragAreas().length === 2 && bar())
            compare(dragAreas(), ["0 0 1100 " + Metrics.stripHeight + " maximises",
                                  [0, 750 - bar().height, 1100, bar().height].join(" ")])
        }

        function test_pagesFadeIntoEachOther() {
            app.createDocuments(2)
            app.open(0)
            tryVerify(() => ItemTree.all(root).filter(item => item instanceof EditorView).every(view => view.opacity === 1))
            app.open(1)
            const views = ItemTree.all(root).filter(item => item instanceof EditorView)
            compare(views.length, 2)
            let seenTogether = false
            views.forEach(view => view.opacityChanged.connect(
                () => seenTogether = seenTogether || views.every(other => other.opacity > 0 && other.opacity < 1)))
            tryVerify(() => ItemTree.all(root).filter(item => item instanceof EditorView).length === 1)
            verify(seenTogether)
        }

        function test_aClickOverTheNavigationOnlyEndsIt() {
            app.showNav()
            const button = named(root, "Start Writing")
            mouseClick(root, button.mapToItem(root, 20, 10).x, button.mapToItem(root, 20, 10).y)
            verify(!app.main.appState.showNav)
            compare(app.documentCount(), 0)
            mouseClick(button)
            compare(app.documentCount(), 1)
        }

        function test_oneButtonAlerts_data() {
            return [
                { tag: "limit", raise: () => app.createDocuments(6), title: "Five is the limit.", button: "Fine",
                  message: "You've got 5 docs in this space. Archive one first. Constraints breed creativity." },
                { tag: "about", raise: () => app.main.commands.run("about"), title: "Pelko", button: "Close",
                  message: "Built by Dravel. Fueled by espresso and poor decisions." }
            ]
        }

        function test_oneButtonAlerts(row) {
            for (const key of [Qt.Key_Return, Qt.Key_Space, Qt.Key_Escape]) {
                row.raise()
                verify(reading(root, row.title))
                verify(reading(root, row.message))
                verify(named(root.alerts, row.button).activeFocus)
                keyClick(key)
                tryVerify(() => !reading(root.alerts, row.message))
            }
        }

        function test_anErrorIsToldWhenTheWriterPauses() {
            for (const key of [Qt.Key_Return, Qt.Key_Escape]) {
                app.failToSave()
                verify(reading(root, app.main.errorTitle))
                verify(reading(root, "Save failed: No space left on device"))
                tryVerify(() => named(root.unsavedAlerts, "Got it").activeFocus)
                keyClick(key)
                tryVerify(() => !reading(root.unsavedAlerts, "Save failed: No space left on device"))
                app.saveAgain()
            }
        }

        function test_wordsThatCouldNotBeSavedAreMarkedAtTheTitle() {
            app.createDocuments(1)
            app.advance(1000)
            verify(!accessiblyNamed(root, "Not saved"))
            app.failToSave()
            const mark = accessiblyNamed(root, "Not saved")
            verify(mark)
            compare(mark.Accessible.description, "Save failed: No space left on device")
            app.main.dismissError()
            verify(mark.visible)
            app.saveAgain()
            verify(!mark.visible)
        }

        function test_theProgramAsksBeforeItLosesWords() {
            app.createDocuments(1)
            app.failToSave()
            verify(!app.main.quitGuard.mayQuit())
            verify(!app.main.showError)
            verify(named(root, "Stay").activeFocus)
            keyClick(Qt.Key_Return)
            verify(!app.main.quitGuard.asks)
            verify(!app.main.quitGuard.mayQuit())
            keyClick(Qt.Key_Tab)
            verify(named(root, "Quit and lose them").activeFocus)
            keyClick(Qt.Key_Return)
            verify(app.main.quitGuard.mayQuit())
        }

        function test_aPictureThatCouldNotBeChosenIsTold() {
            app.openPage(["textSmall", "image"])
            app.advance(1000)
            tryVerify(() => named(root, "Add image"))
            for (const key of [Qt.Key_Return, Qt.Key_Escape]) {
                const add = named(root, "Add image")
                add.forceActiveFocus(Qt.TabFocusReason)
                keyClick(Qt.Key_Return)
                app.failToChoose("The file chooser of the desktop is gone.")
                const alert = reading(root.alerts, "Couldn't import image.")
                verify(alert)
                verify(reading(root.alerts, "The file chooser of the desktop is gone."))
                tryVerify(() => named(root.alerts, "OK").activeFocus)
                keyClick(key)
                tryVerify(() => !reading(root.alerts, "Couldn't import image."))
                verify(add.activeFocus)
            }
            // It is told anew, and a click ends it.
            mouseClick(named(root, "Add image"))
            app.failToChoose("Gone again.")
            mouseClick(named(root.alerts, "OK"))
            tryVerify(() => !reading(root.alerts, "Gone again."))
        }

        function test_anAlertGivesTheFocusBack() {
            const button = named(root, "Start Writing")
            app.main.commands.run("about")
            verify(!button.activeFocus)
            keyClick(Qt.Key_Return)
            verify(button.activeFocus)
        }

        function test_anAlertGivesTheCaretBack() {
            app.createDocuments(1)
            app.advance(1000)
            const caret = stage.Window.activeFocusItem
            verify(caret instanceof TextEdit)
            app.main.commands.run("about")
            verify(!caret.activeFocus)
            keyClick(Qt.Key_Escape)
            verify(caret.activeFocus)
            keyClick(Qt.Key_F10)
            verify(!caret.activeFocus)
            keyClick(Qt.Key_Escape)
            verify(caret.activeFocus)
        }

        function test_nahHasTheFocusWhenAskedToDelete() {
            app.createDocuments(1)
            app.requestDelete()
            verify(named(root, "Nah").activeFocus)
            keyClick(Qt.Key_Return)
            verify(!app.main.showDeleteConfirmation)
            compare(app.documentCount(), 1)
        }

        function test_deleteDeletes() {
            app.createDocuments(1)
            app.requestDelete()
            keyClick(Qt.Key_Tab)
            verify(named(root, "Delete").activeFocus)
            keyClick(Qt.Key_Return)
            compare(app.documentCount(), 0)
            tryVerify(() => named(root, "Start Writing") && named(root, "Start Writing").activeFocus)
        }

        function test_escapeDeletesNothing() {
            app.createDocuments(1)
            app.requestDelete()
            keyClick(Qt.Key_Escape)
            verify(!app.main.showDeleteConfirmation)
            compare(app.documentCount(), 1)
        }

        function test_theMenuIsWorkedByKeyboard() {
            keyClick(Qt.Key_F10)
            keyClick(Qt.Key_Down)
            verify(named(root, "New Document").activeFocus)
            keyClick(Qt.Key_Return)
            compare(app.documentCount(), 1)
        }

        function test_theKeyOfTheMenuClosesItAgain() {
            const button = named(root, "Start Writing")
            for (const walked of [false, true]) {
                keyClick(Qt.Key_F10)
                verify(named(root, "About Pelko"))
                if (walked)
                    keyClick(Qt.Key_Down)
                keyClick(Qt.Key_F10)
                tryVerify(() => !named(root, "About Pelko"))
                verify(button.activeFocus)
            }
        }

        function test_theButtonOfTheMenuClosesItAgain() {
            const button = named(root, "Menu")
            button.Accessible.pressAction()
            verify(named(root, "About Pelko"))
            button.Accessible.pressAction()
            tryVerify(() => !named(root, "About Pelko"))
        }

        function menuRows() {
            return ItemTree.all(root).filter(item => item instanceof PopupMenuRow && item.visible)
        }

        function test_theMenuListsTheCommands() {
            mouseClick(named(root, "Menu"))
            const titles = menuRows().map(row => row.name)
            compare(titles, ["New Document", "Go to…", "Save", "Undo", "Redo", "Cut", "Copy", "Paste",
                             "Select All", "Ideas", "Work", "Journal", "Tasks", "Pomodoro", "Focus mode", "Full screen",
                             "Export…", "Export everything…", "Copy page as Markdown", "Keyboard Shortcuts", "About Pelko", "Quit"])
            mouseClick(named(root, "About Pelko"))
            verify(app.main.appState.showAbout)
        }

        function choose(command) {
            keyClick(Qt.Key_F10)
            mouseClick(named(root, command))
            tryVerify(() => !named(root, command))
        }

        function test_theEditingCommandsActOnTheText() {
            app.createDocuments(1)
            app.advance(1000)
            const field = stage.Window.activeFocusItem
            keyClick("a")
            keyClick("b")
            choose("Undo")
            compare(field.text, "")
            choose("Redo")
            compare(field.text, "ab")
            choose("Select All")
            choose("Copy")
            choose("Cut")
            compare(field.text, "")
            choose("Paste")
            compare(field.text, "ab")
        }

        function test_theKeysOfUndoReachThePageFromAControl() {
            app.createDocuments(1)
            app.advance(1000)
            const field = stage.Window.activeFocusItem
            keyClick("a")
            named(root, "Menu").forceActiveFocus()
            keyClick(Qt.Key_Z, Qt.ControlModifier)
            compare(field.text, "")
            verify(field.activeFocus)
            for (const keys of [[Qt.Key_Y, Qt.ControlModifier], [Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier]]) {
                named(root, "Menu").forceActiveFocus()
                keyClick(...keys)
                compare(field.text, "a")
                keyClick(Qt.Key_Z, Qt.ControlModifier)
            }
        }

        function test_theEditingCommandsShareLinesOfTheMenu() {
            keyClick(Qt.Key_F10)
            const at = name => named(root, name).mapToItem(root, 0, 0)
            compare(at("Redo").y, at("Undo").y)
            verify(at("Redo").x > at("Undo").x)
            verify(at("Cut").y > at("Undo").y)
            for (let i = 0; i < 4; ++i)
                keyClick(Qt.Key_Down)
            verify(named(root, "Undo").activeFocus)
            keyClick(Qt.Key_Right)
            verify(named(root, "Redo").activeFocus)
            keyClick(Qt.Key_Right)
            verify(named(root, "Redo").activeFocus)
            keyClick(Qt.Key_Left)
            verify(named(root, "Undo").activeFocus)
        }

        function test_everyRowOfTheMenuHasItsSymbol() {
            keyClick(Qt.Key_F10)
            for (const row of menuRows())
                verify(app.isDrawn(row.icon.name), row.name)
        }

        function test_theMenuTicksTheCurrentSpace() {
            const ticks = () => menuRows().filter(row => row.Accessible.checked).map(row => row.name)
            keyClick(Qt.Key_F10)
            compare(ticks(), ["Work"])
            compare(menuRows().filter(row => row.Accessible.checkable).map(row => row.name),
                    ["Ideas", "Work", "Journal", "Tasks", "Focus mode", "Full screen"])
            mouseClick(named(root, "Journal"))
            keyClick(Qt.Key_F10)
            compare(ticks(), ["Journal"])
        }

        function test_everyKeyOfTheTableGivesItsCommand() {
            keyClick(Qt.Key_3, Qt.ControlModifier)
            verify(app.isIn("journal"))
            keyClick(Qt.Key_N, Qt.ControlModifier)
            compare(app.documentCount(), 1)
            app.advance(1000)
            verify(stage.Window.activeFocusItem instanceof TextEdit)
            keyClick(Qt.Key_1, Qt.ControlModifier)
            verify(app.isIn("ideas"))
            keyClick(Qt.Key_F11)
            compare(requests.count, 1)
        }

        function test_theFrameHasNames() {
            for (const name of ["Menu", "Minimise", "Maximise", "Close"])
                verify(named(root, name), name)
        }
    }
}
