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
        id: scene

        Item {
            readonly property alias program: program
            readonly property alias view: view
            readonly property Item card: view.children[view.children.length - 1]

            anchors.fill: parent

            LaunchView {
                id: view

                anchors.fill: parent
                launch: program.launch
                main: program.main
            }

            // Stands last so that it outlives the views.
            ShellFixture { id: program }
        }
    }

    TestCase {
        name: "LaunchView"
        when: windowShown

        function isGround(x: int, y: int) : bool {
            return Qt.colorEqual(grabImage(stage).pixel(x, y), FirePalette.deepBackground)
        }

        function test_theCardShowsTheFlameAndTheName() {
            const card = createTemporaryObject(scene, stage).card
            compare(card.width, 1100)
            compare(card.height, 750)
            compare(card.opacity, 1)
            const flame = ItemTree.all(card).find(item => item instanceof AnimatedFlame)
            const name = ItemTree.all(card).find(item => item.text === "Pelko")
            compare(flame.size, 56)
            fuzzyCompare(name.font.pointSize * Typography.pixelsPerPoint(), 20, 0.01)
            compare(name.font.weight, Font.DemiBold)
            compare(name.opacity, 0.6)
            compare(name.mapToItem(card, 0, 0).y - flame.mapToItem(card, 0, flame.height).y, 14)
            fuzzyCompare(flame.mapToItem(card, flame.width / 2, 0).x, 550, 1)
        }

        function test_theNameComesAfterTheFlameAndTheCardFades() {
            const root = createTemporaryObject(scene, stage)
            const launch = root.program.launch
            const name = ItemTree.all(root.card).find(item => item.text === "Pelko").parent
            compare(name.opacity, 0)
            let shown = 0
            launch.showTitleChanged.connect(() => shown = Date.now())
            tryVerify(() => name.opacity > 0)
            verify(Date.now() - shown >= 330, "a pause of 0.35 s")
            tryVerify(() => name.opacity === 1)
            verify(Date.now() - shown >= 630, "and 0.3 s to come")
            const left = Date.now()
            root.program.advance(1000)
            tryVerify(() => !root.card.visible)
            verify(Date.now() - left >= 430, "0.45 s to go")
        }

        function test_theCardCoversTheWindowAndGoesAway() {
            const root = createTemporaryObject(scene, stage)
            const program = root.program
            const view = root.view
            tryVerify(() => program.launch.showFlame && program.launch.showTitle)
            verify(program.launch.overlayVisible)
            view.forceActiveFocus()
            keyClick(Qt.Key_Return)
            mouseClick(view, view.width / 2, view.height / 2, Qt.RightButton)
            mouseWheel(view, view.width / 2, view.height / 2, 0, -120)
            compare(program.documentCount(), 0)
            program.advance(1000)
            verify(!program.launch.overlayVisible)
            keyClick(Qt.Key_Return)
            compare(program.documentCount(), 1)
            tryVerify(() => !root.card.visible)
        }
    }
}
