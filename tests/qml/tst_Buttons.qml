pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 400
    height: 200

    TextEdit { id: writing; y: 150; width: 100; height: 30; focus: true }

    Component {
        id: chipComponent

        IconChipButton { x: 40; y: 40; icon.name: "text.quote"; tip: "Quote" }
    }

    TasksFixture { id: bench }

    Component {
        id: tasksComponent

        TasksPanelToggleButton { tasks: bench.tasks }
    }

    Component {
        id: deleteComponent

        BubblyDeleteButton { x: 40; y: 40 }
    }

    Component {
        id: bannerComponent

        BannerToggleButton { x: 40; y: 40; isBanner: false }
    }

    Component {
        id: captionComponent

        CaptionButton { x: 40; y: 40; icon.name: "window.close"; name: "Close"; closes: true }
    }

    Component {
        id: warmComponent

        WarmButton { x: 40; y: 40; name: "Start Writing"; icon.name: "flame" }
    }

    Component {
        id: otherWindowComponent

        Window { width: 100; height: 100; visible: true }
    }

    SignalSpy { id: triggered; signalName: "triggered" }

    TestCase {
        name: "Buttons"
        when: windowShown

        function init() {
            mouseMove(stage, 390, 190)
            writing.forceActiveFocus()
        }

        function shownRing(control) {
            return ItemTree.all(control).find(item => item instanceof FocusRing && item.shown)
        }

        function make(component) {
            const button = createTemporaryObject(component, stage)
            triggered.target = button
            triggered.clear()
            return button
        }

        function everyButton() {
            return [
                { tag: "chip", component: chipComponent, name: "Quote", width: 36 },
                { tag: "delete", component: deleteComponent, name: "Delete", width: 28 },
                { tag: "banner", component: bannerComponent, name: "Banner", width: 28 },
                { tag: "caption", component: captionComponent, name: "Close", width: 28 },
                { tag: "warm", component: warmComponent, name: "Start Writing", width: 0 }
            ]
        }

        function test_isNamedAndIsAButton_data() { return everyButton() }
        function test_isNamedAndIsAButton(row) {
            const button = make(row.component)
            compare(button.Accessible.role, Accessible.Button)
            compare(button.Accessible.name, row.name)
        }

        function test_clickTriggersAndLeavesTheCaretWhereItIs_data() { return everyButton() }
        function test_clickTriggersAndLeavesTheCaretWhereItIs(row) {
            const button = make(row.component)
            mouseClick(button)
            compare(triggered.count, 1)
            verify(writing.activeFocus)
        }

        function test_releasedOutsideItEndsUnpressedAndDoesNothing_data() { return everyButton() }
        function test_releasedOutsideItEndsUnpressedAndDoesNothing(row) {
            const button = make(row.component)
            mousePress(button, 10, 10)
            verify(button.pressed)
            mouseMove(stage, 300, 120)
            mouseRelease(stage, 300, 120)
            verify(!button.pressed)
            compare(triggered.count, 0)
        }

        function test_keysTriggerIt_data() {
            return [{ tag: "Space", key: Qt.Key_Space }, { tag: "Return", key: Qt.Key_Return },
                    { tag: "Enter", key: Qt.Key_Enter }]
        }
        function test_keysTriggerIt(row) {
            const button = make(chipComponent)
            button.forceActiveFocus(Qt.TabFocusReason)
            keyClick(row.key)
            compare(triggered.count, 1)
        }

        function test_assistiveTechnologyCanPressIt_data() { return everyButton() }
        function test_assistiveTechnologyCanPressIt(row) {
            const button = make(row.component)
            button.Accessible.pressAction()
            compare(triggered.count, 1)
        }

        function test_chipUnfoldsUnderThePointerAndFoldsAgain() {
            const chip = make(chipComponent)
            compare(chip.width, 36)
            compare(chip.height, 28)
            mouseMove(chip, 10, 10)
            tryVerify(() => chip.width > 65)
            mouseMove(stage, 390, 190)
            tryCompare(chip, "width", 36)
        }

        function test_chipUnfoldsWhenTheKeyboardReachesIt() {
            const chip = make(chipComponent)
            chip.forceActiveFocus(Qt.TabFocusReason)
            verify(chip.visualFocus)
            tryVerify(() => chip.width > 65)
        }

        function test_springsOfHoverAndPress_data() {
            return [
                { tag: "chip", component: chipComponent, springs: ["0.32 1", "0.18 0.55"] },
                { tag: "tasks panel", component: tasksComponent, springs: ["0.32 1", "0.18 0.55"] },
                { tag: "banner", component: bannerComponent, springs: ["0.35 0.7", "0.2 0.5"] },
                { tag: "delete", component: deleteComponent, springs: ["0.35 0.7", "0.2 0.5"] }
            ]
        }

        function test_springsOfHoverAndPress(row) {
            const button = createTemporaryObject(row.component, stage)
            const springs = Array.from(button.resources).filter(item => item instanceof SpringFollower)
            compare(springs.map(spring => spring.response + " " + spring.dampingFraction), row.springs)
        }

        function test_ringIsStillShownWhenTheWindowIsBack() {
            const button = make(chipComponent)
            const other = createTemporaryObject(otherWindowComponent, null)
            button.forceActiveFocus(Qt.TabFocusReason)
            verify(shownRing(button))
            other.requestActivate()
            tryVerify(() => !button.activeFocus)
            verify(!shownRing(button))
            stage.Window.window.requestActivate()
            tryVerify(() => button.activeFocus)
            verify(shownRing(button))
        }

        function test_ringIsNotShownWhereTheKeyboardDidNotLead() {
            const button = make(chipComponent)
            button.forceActiveFocus(Qt.MouseFocusReason)
            verify(!shownRing(button))
        }

        function test_deleteWidensFromFourToTwelveAroundItsContent() {
            const bubble = make(deleteComponent)
            compare(bubble.sidePadding, 4)
            compare(bubble.width, 28)
            mouseMove(bubble, 10, 10)
            tryCompare(bubble, "sidePadding", 12)
            compare(bubble.width, bubble.contentWidth + 24)
        }

        function test_deleteShrinksWhilePressed() {
            const bubble = make(deleteComponent)
            compare(bubble.scale, 1)
            mousePress(bubble, 10, 10)
            tryCompare(bubble, "scale", 0.94)
            mouseRelease(bubble, 10, 10)
            tryCompare(bubble, "scale", 1)
        }

        function label(button) {
            return ItemTree.all(button).find(item => item instanceof Text && item.visible)
        }

        function test_bannerSaysWhatItWouldDo_data() {
            return [
                { tag: "picture", isBanner: false, says: "Banner", symbol: "rectangle.expand.vertical" },
                { tag: "banner", isBanner: true, says: "Unbanner", symbol: "rectangle.compress.vertical" }
            ]
        }
        function test_bannerSaysWhatItWouldDo(row) {
            const button = make(bannerComponent)
            button.isBanner = row.isBanner
            compare(button.icon.name, row.symbol)
            compare(button.Accessible.name, row.says)
            compare(label(button), undefined)
            mouseMove(button, 10, 10)
            tryVerify(() => label(button)?.text === row.says)
        }

        function test_hoverThatTurnsBackHalfWayKeepsItsSpeed() {
            const button = make(bannerComponent)
            const values = []
            button.hoverAmountChanged.connect(() => {
                values.push(button.hoverAmount)
                if (values.length === 1)
                    mouseMove(stage, 390, 190)
            })
            mouseMove(button, 10, 10)
            tryVerify(() => values.length > 2 && button.hoverAmount === 0)
            verify(values[0] < 1 && values[1] > values[0], "still unfolding: " + values)
            compare(button.width, 28)
        }

        function test_reducedMotionJumps() {
            Motion.reduced = true
            const chip = make(chipComponent)
            mouseMove(chip, 10, 10)
            verify(chip.width > 65)
            Motion.reduced = false
        }
    }
}
