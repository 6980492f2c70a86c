pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko

Item {
    id: stage

    width: 600
    height: 400

    TextEdit { id: writing; width: 100; height: 30; focus: true }

    Component {
        id: menuComponent

        PopupMenu {
            id: menu

            property string taken: ""

            name: "Pelko"

            PopupMenuRow { menu: menu; name: "New Document"; keys: "Ctrl+N"; onTriggered: menu.taken += "new" }
            PopupMenuSeparator {}
            PopupMenuRow { menu: menu; name: "Journal"; enabled: false }
            PopupMenuRow { menu: menu; name: "Work"; ticked: true; onTriggered: menu.taken += "work" }
            PopupMenuRow { menu: menu; name: "Delete"; destroys: true; onTriggered: menu.taken += "delete" }
        }
    }

    TestCase {
        name: "PopupMenu"
        when: windowShown

        function init() {
            stage.height = 400
            Motion.reduced = true
            mouseMove(stage, 595, 395)
            writing.forceActiveFocus()
        }

        function cleanup() {
            Motion.reduced = false
        }

        function popUp(x, y) {
            const menu = createTemporaryObject(menuComponent, stage)
            menu.popUp(x, y)
            tryCompare(menu, "shown", 1)
            return menu
        }

        function focusedName() {
            return stage.Window.activeFocusItem.name ?? ""
        }

        function test_opensWhereItIsAsked() {
            const menu = popUp(40, 50)
            compare(menu.card.x, 40)
            compare(menu.card.y, 50)
        }

        function test_staysInsideItsParent() {
            const menu = popUp(590, 390)
            compare(menu.card.x + menu.card.width, 592)
            compare(menu.card.y + menu.card.height, 392)
        }

        function test_oneThatIsTooHighScrollsToTheChoice() {
            stage.height = 120
            const menu = popUp(40, 50)
            const place = () => stage.Window.activeFocusItem.mapToItem(menu.card, 0, 0).y
            compare(menu.card.y, 8)
            compare(menu.card.height, 104)
            keyClick(Qt.Key_End)
            compare(focusedName(), "Delete")
            compare(place() + 30, 98)
            keyClick(Qt.Key_Home)
            compare(place(), 6)
            keyClick(Qt.Key_End)
            keyClick(Qt.Key_Escape)
            menu.popUp(40, 50)
            keyClick(Qt.Key_Down)
            compare(place(), 6)
        }

        function test_arrowsWalkTheRowsThatCanBeChosenAndRound() {
            popUp(40, 50)
            const walk = []
            for (let i = 0; i < 4; ++i) {
                keyClick(Qt.Key_Down)
                walk.push(focusedName())
            }
            compare(walk, ["New Document", "Work", "Delete", "New Document"])
            keyClick(Qt.Key_Up)
            compare(focusedName(), "Delete")
        }

        function test_upStartsAtTheEnd() {
            popUp(40, 50)
            keyClick(Qt.Key_Up)
            compare(focusedName(), "Delete")
        }

        function test_homeAndEndGoToTheFirstAndTheLast() {
            popUp(40, 50)
            keyClick(Qt.Key_End)
            compare(focusedName(), "Delete")
            keyClick(Qt.Key_Home)
            compare(focusedName(), "New Document")
        }

        function test_returnTakesTheChosenRowAndCloses_data() {
            return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Enter", key: Qt.Key_Enter },
                    { tag: "Space", key: Qt.Key_Space }]
        }
        function test_returnTakesTheChosenRowAndCloses(row) {
            const menu = popUp(40, 50)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            keyClick(row.key)
            compare(menu.taken, "work")
            verify(!menu.open)
            verify(writing.activeFocus)
        }

        function test_escapeClosesWithoutAChoiceAndGivesTheFocusBack() {
            const menu = popUp(40, 50)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Escape)
            verify(!menu.open)
            compare(menu.taken, "")
            verify(writing.activeFocus)
            tryCompare(menu, "visible", false)
        }

        function test_pointerChoosesAndClickTakes() {
            const menu = popUp(40, 50)
            mouseMove(menu.card, 60, 20)
            compare(focusedName(), "New Document")
            mouseClick(menu.card, 60, 20)
            compare(menu.taken, "new")
            verify(!menu.open)
        }

        function test_clickBesideItCloses() {
            const menu = popUp(40, 50)
            mouseClick(stage, 500, 300)
            verify(!menu.open)
            compare(menu.taken, "")
        }

        function test_clickOnADisabledRowDoesNothing() {
            const menu = popUp(40, 50)
            mouseClick(menu.card, 60, 6 + 30 + 13 + 15)
            verify(menu.open)
            compare(menu.taken, "")
        }

        function test_rowsAreMenuItemsWithNames() {
            const menu = popUp(40, 50)
            compare(menu.card.Accessible.role, Accessible.PopupMenu)
            compare(menu.card.Accessible.name, "Pelko")
            keyClick(Qt.Key_Down)
            const row = stage.Window.activeFocusItem
            compare(row.Accessible.role, Accessible.MenuItem)
            compare(row.Accessible.name, "New Document")
            row.Accessible.pressAction()
            compare(menu.taken, "new")
        }
    }
}
