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
        id: window

        FocusScope {
            readonly property alias program: program

            anchors.fill: parent
            focus: true

            WindowContent {
                main: program.main
                launch: program.launch
                timers: program.timers
                tasks: program.tasks
                exports: program.exports
                folderChooser: program.chooser
            }

            // Stands last so that it outlives the views.
            WholeProgram { id: program }
        }
    }

    Component {
        id: panel

        FocusScope {
            readonly property alias bench: bench

            width: view.width
            height: view.height
            focus: true

            PomodoroView {
                id: view

                width: implicitWidth
                height: implicitHeight
                focus: true
                panel: bench.panel
            }

            TimersFixture { id: bench }
        }
    }

    Component { id: pseudo; PseudoLocale {} }

    Component { id: lister; WholeProgram {} }

    ShownTexts { id: texts }

    TestCase {
        id: test

        name: "Translations"
        when: windowShown

        property var language

        function init() {
            stage.width = 1100
            stage.height = 750
            language = createTemporaryObject(pseudo, test)
        }

        function open(scene) {
            const root = createTemporaryObject(window, stage)
            root.forceActiveFocus()
            root.program.enter(scene)
            return root
        }

        function openPanel(sparks, sessions) {
            const root = createTemporaryObject(panel, stage)
            root.forceActiveFocus()
            for (let number = 0; number < sparks; ++number)
                root.bench.capture("Искра")
            root.bench.completeSessions(sessions)
            return root
        }

        // Until nothing has moved for a moment. On a busy machine what is to move may begin late.
        function settle(root) {
            waitForRendering(root)
            let before = ""
            let still = 0
            for (let patience = 0; patience < 60 && still < 3; ++patience) {
                const now = texts.picture(root)
                still = now === before ? still + 1 : 0
                before = now
                wait(100)
            }
        }

        function waitUntilEmpty(list) {
            for (let patience = 0; patience < 50 && list().length > 0; ++patience)
                wait(100)
            return Array.from(list())
        }

        function verifyTexts(root) {
            settle(root)
            verify(texts.translated(root).length > 0, "there is something to look at")
            compare(Array.from(texts.raw(root)), [], "raw texts")
            compare(waitUntilEmpty(() => texts.clipped(root)), [], "clipped texts")
        }

        // What is laid out from right to left is the mirror picture, but for pages.
        function verifyMirrored(root, reopen) {
            texts.remember(root)
            verify(texts.remembered() > 3)
            language.rightToLeft = true
            reopen?.()
            settle(root)
            compare(Array.from(texts.notMirrored(root)), [], "not mirrored")
        }

        function test_everyViewIsTranslatedFitsAndMirrors_data() {
            return createTemporaryObject(lister, test).scenes.map(scene => ({ tag: scene }))
        }

        function test_everyViewIsTranslatedFitsAndMirrors(row) {
            const root = open(row.tag)
            verifyTexts(root)
            // A menu stands where it was opened.
            const menu = () => root.program.main.commands.run("appMenu")
            verifyMirrored(root, row.tag === "menu" ? () => { menu(); menu() } : null)
        }

        function test_everyViewFitsTheSmallestWindow_data() {
            return test_everyViewIsTranslatedFitsAndMirrors_data()
        }

        function test_everyViewFitsTheSmallestWindow(row) {
            stage.width = 800
            stage.height = 500
            const root = open(row.tag)
            verifyTexts(root)
        }

        function test_thePanelIsTranslatedFitsAndMirrors_data() {
            return [{ tag: "without sparks", sparks: 0, sessions: 0 }, { tag: "with sparks", sparks: 3, sessions: 6 }]
        }

        function test_thePanelIsTranslatedFitsAndMirrors(row) {
            const root = openPanel(row.sparks, row.sessions)
            verifyTexts(root)
            verifyMirrored(root)
        }

        function test_theMenuOfASparkIsTranslatedAndFits() {
            const root = openPanel(1, 0)
            settle(root)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_F10, Qt.ShiftModifier)
            tryVerify(() => texts.translated(root).some(text => text.includes("Cõp")))
            verifyTexts(root)
        }

        function test_theMenuOfABlockIsTranslatedAndFits() {
            const root = open("page")
            settle(root)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_F10, Qt.ShiftModifier)
            tryVerify(() => texts.translated(root).some(text => text.includes("Béñ") || text.includes("Délé")))
            verifyTexts(root)
        }

        function test_theMenuOfABlockIsMirrored() {
            language.rightToLeft = true
            const root = open("page")
            settle(root)
            const field = root.Window.activeFocusItem
            const pointer = field.mapToItem(root, field.width - 40, 10)
            mouseClick(root, pointer.x, pointer.y, Qt.RightButton)
            const row = () => ItemTree.all(root).find(item => item instanceof PopupMenuRow && item.visible && item.opacity === 1)
            tryVerify(row)
            verify(row().mirrored)
            fuzzyCompare(row().menu.card.x + row().menu.card.width, pointer.x, 1)
        }

        function test_theSymbolOfTheTasksPanelIsMirrored() {
            const root = open("page")
            const button = ItemTree.all(root).find(item => item instanceof TasksPanelToggleButton)
            const symbol = ItemTree.all(button).find(item => item instanceof SymbolIcon)
            compare(symbol.rotation, 0)
            language.rightToLeft = true
            compare(symbol.rotation, 180)
        }

        function test_textsOfAPageKeepTheirDirection() {
            const root = open("page")
            settle(root)
            const field = root.Window.activeFocusItem
            compare(field.effectiveHorizontalAlignment, TextEdit.AlignLeft)
            language.rightToLeft = true
            compare(field.effectiveHorizontalAlignment, TextEdit.AlignLeft)
            field.insert(0, "שלום ")
            compare(field.effectiveHorizontalAlignment, TextEdit.AlignRight)
        }
    }
}
