import QtQuick
import Pelko

/// The separator between two groups of a menu.
Item {
    width: parent?.width ?? 0
    height: 13
    Accessible.role: Accessible.Separator

    Rectangle {
        x: 10
        y: 6
        width: parent.width - 20
        height: 1
        color: FirePalette.white(0.08)
    }
}
