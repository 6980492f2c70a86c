import QtQuick
import Pelko

/// Darkens a banner behind its title and fades its lower edge into the page.
Rectangle {
    gradient: Gradient {
        GradientStop { position: 0.00; color: Qt.alpha(FirePalette.deepBackground, 0.20) }
        GradientStop { position: 0.30; color: Qt.alpha(FirePalette.deepBackground, 0) }
        GradientStop { position: 0.48; color: Qt.alpha(FirePalette.deepBackground, 0.10) }
        GradientStop { position: 0.84; color: Qt.alpha(FirePalette.deepBackground, 0.72) }
        GradientStop { position: 1.00; color: Qt.alpha(FirePalette.editorSurface, 0.96) }
    }
}
