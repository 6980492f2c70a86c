import QtQuick
import Pelko

/// A thin line that fades out towards both ends.
BlockRow {
    block: editor

    BlockEditor {
        id: editor

        Accessible.focusable: true
        Accessible.name: BlockKinds.divider.tip
        Accessible.role: Accessible.Separator
        activeFocusOnTab: true
        anchors.fill: parent
        focus: true
        implicitHeight: 1
        showsHover: false

        Rectangle {
            anchors.fill: parent
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: FirePalette.white(0) }
                GradientStop { position: 0.12; color: FirePalette.divider }
                GradientStop { position: 0.88; color: FirePalette.divider }
                GradientStop { position: 1; color: FirePalette.white(0) }
            }
        }

        FocusRing {
            controlRadius: 2
            shown: editor.activeFocus && editor.walkedTo
        }
    }
}
