import QtQuick
import Pelko

/// Fades the page out under the strip at the top of the window.
Rectangle {
    height: Metrics.stripVeil
    gradient: Gradient {
        GradientStop { position: 0.0; color: Qt.alpha(FirePalette.editorSurface, 0.97) }
        GradientStop { position: 0.5; color: Qt.alpha(FirePalette.editorSurface, 0.80) }
        GradientStop { position: 1.0; color: Qt.alpha(FirePalette.editorSurface, 0) }
    }
}
