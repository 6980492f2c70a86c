pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 1100
    height: 750

    ShellFixture { id: program }

    Component {
        id: launchView

        LaunchView {
            anchors.fill: parent
            main: program.main
            launch: program.launch
        }
    }

    TestCase {
        name: "LaunchView"
        when: windowShown

        function isGround(x: int, y: int) : bool {
            return Qt.colorEqual(grabImage(stage).pixel(x, y), FirePalette.deepBackground)
        }

        function test_theCardCoversTheWindowAndGoesAway() {
            verify(!program.launch.showFlame)
            const view = createTemporaryObject(launchView, stage)
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
            tryVerify(() => view.children[view.children.length - 1].visible === false)
        }
    }
}
