pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko

Item {
    id: stage

    width: 600
    height: 400

    TextEdit { id: writing; width: 100; height: 30; focus: true }

    MouseArea { id: below; anchors.fill: parent }

    SignalSpy { id: clicksBelow; target: below; signalName: "clicked" }

    Shortcut { id: shortcut; sequence: "Ctrl+N" }

    SignalSpy { id: shortcutSpy; target: shortcut; signalName: "activated" }

    Component {
        id: nudge

        AlertDialog {
            id: nudgeDialog

            property int chosen: 0

            title: "Five is the limit."
            message: "Archive one first."
            actions: DialogAction { name: "Fine"; cancels: true; onTriggered: nudgeDialog.chosen += 1 }
        }
    }

    Component {
        id: interruption

        AlertDialog {
            id: interruptionDialog

            property int chosen: 0

            title: "Flat tire."
            message: "Save failed."
            unasked: true
            actions: DialogAction { name: "Got it"; cancels: true; onTriggered: interruptionDialog.chosen += 1 }
        }
    }

    Component {
        id: danger

        AlertDialog {
            id: dangerDialog

            property string chosen: ""

            title: "Delete it?"
            symbol: "trash"
            actions: [
                DialogAction { name: "Nah"; cancels: true; onTriggered: dangerDialog.chosen += "Nah" },
                DialogAction { name: "Delete"; destroys: true; onTriggered: dangerDialog.chosen += "Delete" }
            ]
        }
    }

    SignalSpy { id: dismissed; signalName: "dismissed" }

    TestCase {
        name: "AlertDialog"
        when: windowShown

        function init() {
            Motion.reduced = true
            writing.clear()
            writing.forceActiveFocus()
            clicksBelow.clear()
            shortcutSpy.clear()
        }

        function cleanup() {
            Motion.reduced = false
        }

        function show(component) {
            const dialog = createTemporaryObject(component, stage)
            dismissed.target = dialog
            dismissed.clear()
            dialog.open = true
            return dialog
        }

        function type(letters) {
            Array.from(letters).forEach(letter => keyClick(letter))
        }

        function test_anUnaskedAlertLeavesTheKeysToTheWriter() {
            type("The qui")
            const dialog = show(interruption)
            type("ck brown fox ")
            keyClick(Qt.Key_Return)
            type("jumps")
            keyClick(Qt.Key_Escape)
            compare(writing.text, "The quick brown fox \njumps")
            verify(writing.activeFocus && dialog.open)
            compare(dialog.chosen, 0)
        }

        function test_anUnaskedAlertTakesTheKeyboardAfterASecondWithoutAKey() {
            const begin = Date.now()
            const dialog = show(interruption)
            verify(writing.activeFocus)
            tryVerify(() => focusedName() === "Got it")
            verify(Date.now() - begin >= 900) // the timers of views are a little inexact
            keyClick(Qt.Key_Return)
            compare(dialog.chosen, 1)
            compare(dismissed.count, 1)
            dialog.open = false
            verify(writing.activeFocus)
        }

        function test_keysPutOffTheAlertThatWasNotAskedFor() {
            show(interruption)
            wait(700)
            type("a")
            wait(700)
            verify(writing.activeFocus)
            tryVerify(() => focusedName() === "Got it")
        }

        function test_whatIsWrittenGoesToThePageAlsoWhenTheAlertHasTheKeyboard() {
            const dialog = show(interruption)
            tryVerify(() => focusedName() === "Got it")
            type(" jumps over")
            compare(writing.text, " jumps over")
            verify(writing.activeFocus && dialog.open)
            compare(dialog.chosen, 0)
            tryVerify(() => focusedName() === "Got it")
        }

        function test_anUnaskedAlertIsClosedByAClickAtOnce() {
            const dialog = show(interruption)
            mouseClick(dialog.card, dialog.card.width / 2, dialog.card.height - 40)
            compare(dialog.chosen, 1)
            dialog.open = false
            verify(writing.activeFocus)
            compare(clicksBelow.count, 0)
        }

        function test_anUnaskedAlertBelowAnotherOneWaits() {
            const below = show(interruption)
            below.covered = true
            const above = show(interruption)
            tryVerify(() => above.activeFocus)
            wait(300)
            verify(!below.activeFocus)
            above.open = false
            below.covered = false
            tryVerify(() => below.activeFocus)
        }

        function focusedName() {
            return stage.Window.activeFocusItem.name
        }

        function test_isHiddenUntilOpened() {
            const dialog = createTemporaryObject(nudge, stage)
            verify(!dialog.visible)
            verify(writing.activeFocus)
        }

        function test_tellsItsTitleAndMessageToAssistiveTechnology() {
            const dialog = show(nudge)
            compare(dialog.Accessible.role, Accessible.AlertMessage)
            compare(dialog.Accessible.name, "Five is the limit.")
            compare(dialog.Accessible.description, "Archive one first.")
        }

        function test_returnTakesTheOnlyChoice() {
            const dialog = show(nudge)
            keyClick(Qt.Key_Return)
            compare(dialog.chosen, 1)
            compare(dismissed.count, 1)
        }

        function test_escapeTakesTheChoiceThatCancels() {
            const dialog = show(danger)
            keyClick(Qt.Key_Escape)
            compare(dialog.chosen, "Nah")
            compare(dismissed.count, 1)
        }

        function test_theHarmlessChoiceHasTheFocusAndShowsIt() {
            show(danger)
            compare(focusedName(), "Nah")
            verify(stage.Window.activeFocusItem.visualFocus)
        }

        function test_returnNeverTakesTheDangerAtFirst() {
            const dialog = show(danger)
            keyClick(Qt.Key_Return)
            compare(dialog.chosen, "Nah")
        }

        function test_tabStaysInside() {
            show(danger)
            keyClick(Qt.Key_Tab)
            compare(focusedName(), "Delete")
            keyClick(Qt.Key_Tab)
            compare(focusedName(), "Nah")
            keyClick(Qt.Key_Backtab)
            compare(focusedName(), "Delete")
        }

        function test_tabThenReturnTakesTheDanger() {
            const dialog = show(danger)
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Return)
            compare(dialog.chosen, "Delete")
            compare(dismissed.count, 1)
        }

        function test_givesTheFocusBackToWhoHadIt() {
            const dialog = show(nudge)
            verify(!writing.activeFocus)
            dialog.open = false
            verify(writing.activeFocus)
            tryCompare(dialog, "visible", false)
        }

        function test_lettersDoNotReachThePage() {
            show(nudge)
            keyClick("a")
            compare(writing.text, "")
        }

        function test_shortcutsAreHeldBack() {
            const dialog = show(nudge)
            keyClick(Qt.Key_N, Qt.ControlModifier)
            compare(shortcutSpy.count, 0)
            dialog.open = false
            keyClick(Qt.Key_N, Qt.ControlModifier)
            compare(shortcutSpy.count, 1)
        }

        function test_clicksDoNotReachThePage() {
            const dialog = show(nudge)
            mouseClick(stage, 5, 390)
            mouseClick(dialog.card, 10, 10)
            compare(clicksBelow.count, 0)
            compare(dismissed.count, 0)
        }

        function test_opensAndClosesWithAFadeAndSettles() {
            Motion.reduced = false
            const dialog = show(nudge)
            verify(dialog.shown < 1)
            tryCompare(dialog, "shown", 1)
            compare(dialog.card.opacity, 1)
            dialog.open = false
            tryCompare(dialog, "visible", false)
        }

        function test_oneOpenFromTheStartTakesTheFocusToo() {
            createTemporaryObject(danger, stage, { open: true })
            compare(focusedName(), "Nah")
        }
    }
}
