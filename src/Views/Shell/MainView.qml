pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import QtQuick.Templates as T
import Pelko

/// The editor of the open document or the empty state, with the tasks panel beside it; above them the navigation, the
/// window frame and the alerts.
FocusScope {
    id: root

    required property MainViewModel main
    property TimersViewModel timers: null
    property TasksViewModel tasks: null

    function showContent(operation: int) {
        main.openDocumentID === ""
            ? content.replace(null, emptyState, {}, operation)
            : content.replace(null, editor, { editor: main.openEditor(main.openDocumentID), timers, tasks, focusFade },
                              operation)
    }

    /// Sends the key of the command to the focused item. Undo and redo that it does not accept go to the page.
    function edit(command: string) {
        const page = content.currentItem as EditorView
        if (EditingKeys.press(root.Window.window, command) || !page || main.appState.showNav)
            return
        if (command === "undo")
            page.editor.undo()
        else if (command === "redo")
            page.editor.redo()
    }

    function toggleMenu() {
        main.dismissNav()
        menu.open ? menu.close() : menu.popUpBelow(strip.menuButton)
    }

    Keys.onEscapePressed: event => event.accepted = main.leaveFocusMode()
    Component.onCompleted: showContent(T.StackView.Immediate)

    Connections {
        target: root.main
        function onOpenDocumentIDChanged() { root.showContent(T.StackView.ReplaceTransition) }
    }

    Connections {
        target: root.main.commands
        function onEditingRequested(id: string) { root.edit(id) }
        function onMenuRequested() { root.toggleMenu() }
        function onPomodoroRequested() {
            root.main.dismissNav()
            root.timers?.togglePanel(strip.timerPlace())
        }
    }

    FocusFade {
        id: focusFade

        focused: root.main.isFocused
    }

    Rectangle {
        anchors.fill: parent
        color: FirePalette.deepBackground
    }

    T.StackView {
        id: content

        anchors { fill: parent; rightMargin: panel.room }
        focus: true
        onCurrentItemChanged: {
            if (currentItem)
                currentItem.focus = true
            navigation.returnFocusTo = content
        }
        replaceEnter: Fade { from: 0; to: 1 }
        replaceExit: Fade { from: 1; to: 0 }
    }

    Component {
        id: editor

        EditorView {
            navigationShown: root.main.appState.showNav
            saved: root.main.appState.showSavedIndicator
            saveError: root.main.saveError
            onNavigationRequested: root.main.toggleNav()
        }
    }

    Component {
        id: emptyState

        EmptyState {
            main: root.main
        }
    }

    TasksPanelContainer {
        id: panel

        anchors { bottom: parent.bottom; right: parent.right; top: parent.top }
        quiet: root.main.isFocused
        tasks: root.tasks
        onReleased: if (activeFocus) content.forceActiveFocus(Qt.OtherFocusReason)
    }

    NavigationOverlay {
        id: navigation

        backdrop: content
        main: root.main
        pageWidth: content.width
    }

    TitleBar {
        id: strip

        anchors { left: parent.left; right: parent.right; top: parent.top }
        focusFade: focusFade
        menuOpen: menu.open
        offersMenu: !root.main.commands.hasMenuBar
        timers: root.timers
        covered: root.main.appState.showNav
        onClickedWhileCovered: root.main.dismissNav()
        onFullScreenLeft: root.main.commands.run("fullScreen")
        onMenuRequested: root.toggleMenu()
    }

    AppMenu {
        id: menu

        commands: root.main.commands
        backdrop: content
    }

    component Fade: Transition {
        id: fade

        required property real from
        required property real to

        NumberAnimation {
            property: "opacity"
            from: fade.from
            to: fade.to
            duration: Motion.reduced ? Motion.fade : PelkoAnimation.smooth.duration
            easing.type: Easing.InOutQuad
        }
    }
}
