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
            program.advance(1000)
            verify(!program.launch.overlayVisible)
            tryVerify(() => view.children[view.children.length - 1].visible === false)
        }
    }
}
