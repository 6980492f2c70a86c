pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Qt.labs.platform as Platform
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
            readonly property alias bar: bar

            anchors.fill: parent
            focus: true

            MainView { anchors.fill: parent; focus: true; main: program.main }
            NativeMenuBar { id: bar; commands: program.main.commands }
            CommandKeys { commands: program.main.commands }

            // Stands last so that it outlives the views.
            ShellWithMenuBar { id: program }
        }
    }

    TestCase {
        id: test

        name: "NativeMenuBar"
        when: windowShown

        property var app
        property var root

        SignalSpy { id: quitting; target: test.app?.main.commands ?? null; signalName: "quitRequested" }

        function init() {
            root = createTemporaryObject(shell, stage)
            app = root.program
            root.forceActiveFocus()
            quitting.clear()
        }

        function menus() {
            return Array.from(root.bar.menus)
        }

        function rows() {
            return [].concat(...menus().map(menu => Array.from(menu.items)))
        }

        function row(title) {
            return rows().find(row => row.text === title)
        }

        // The first visible item below `item` that answers to `name`.
        function named(item, name) {
            return ItemTree.all(item).find(item => item.visible && item.Accessible.name === name) ?? null
        }

        function test_aMenuForEachTitle() {
            compare(menus().map(menu => menu.title), ["File", "Edit", "Spaces", "View", "Help"])
            compare(menus().map(menu => Array.from(menu.items).map(row => row.separator ? "-" : row.text)),
                    [["New Document", "Go to…", "Save", "-", "Export…", "Export everything…", "Copy page as Markdown"],
                     ["Undo", "Redo", "Cut", "Copy", "Paste", "Select All"],
                     ["Ideas", "Work", "Journal"],
                     ["Tasks", "Pomodoro", "Focus mode", "Full screen"],
                     ["Keyboard Shortcuts", "About Pelko", "Quit"]])
        }

        function test_theSystemTakesWhatItHasAPlaceFor() {
            compare(row("About Pelko").role, Platform.MenuItem.AboutRole)
            compare(row("Quit").role, Platform.MenuItem.QuitRole)
            compare(rows().filter(row => row.role !== Platform.MenuItem.NoRole).length, 2)
            row("About Pelko").triggered()
            verify(app.main.appState.showAbout)
            row("Quit").triggered()
            compare(quitting.count, 1)
        }

        function test_aRowIsEnabledWhenItsCommandIs() {
            verify(!row("Focus mode").enabled)
            row("New Document").triggered()
            compare(app.documentCount(), 1)
            verify(row("Focus mode").enabled)
        }

        function test_ticksFollowTheCommands() {
            const ticked = () => rows().filter(row => row.checked).map(row => row.text)
            compare(rows().filter(row => row.checkable).map(row => row.text),
                    ["Ideas", "Work", "Journal", "Tasks", "Focus mode", "Full screen"])
            compare(ticked(), ["Work"])
            row("Journal").toggle()
            row("Journal").triggered()
            compare(ticked(), ["Journal"])
            // The menu takes the tick from the row by itself; the space is still the current one.
            row("Journal").toggle()
            row("Journal").triggered()
            compare(ticked(), ["Journal"])
            app.main.commands.run("ideas")
            compare(ticked(), ["Ideas"])
        }

        function test_theMenusGiveTheCommandsTheirKeys() {
            compare(row("New Document").shortcut, "Ctrl+N")
            compare(row("About Pelko").shortcut, "")
            keyClick(Qt.Key_3, Qt.ControlModifier)
            verify(app.isIn("journal"))
            keyClick(Qt.Key_N, Qt.ControlModifier)
            compare(app.documentCount(), 1)
            keyClick(Qt.Key_Q, Qt.ControlModifier)
            compare(quitting.count, 1)
        }

        function test_theWindowHasNoMenuOfItsOwn() {
            verify(named(root, "Minimise"))
            compare(named(root, "Menu"), null)
            keyClick(Qt.Key_F10)
            compare(named(root, "About Pelko"), null)
        }
    }
}
