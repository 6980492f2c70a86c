pragma Singleton

import QtQuick

/// The colours of the program's dark theme, in sRGB. Views use these names and no values of their own.
QtObject {
    readonly property color amber: Qt.rgba(0.88, 0.45, 0.22, 1)
    readonly property color amberSoft: Qt.rgba(0.94, 0.63, 0.45, 1)
    readonly property color ember: Qt.rgba(0.70, 0.25, 0.14, 1)
    readonly property color deepBackground: Qt.rgba(0.09, 0.08, 0.07, 1)
    readonly property color editorSurface: Qt.rgba(0.12, 0.11, 0.10, 1)

    readonly property color flameTop: Qt.rgba(0.95, 0.60, 0.25, 1)
    // Up to 14 px the dark foot of the flame would sink into the ground, so small flames burn brighter.
    readonly property color smallFlameTop: "#F8B062"
    readonly property color smallFlameMiddle: "#EA8342"
    readonly property color smallFlameFoot: "#D4602F"

    readonly property color ink: "#FFF6EE"
    readonly property color inkHeading: Qt.alpha(ink, 0.96)
    readonly property color inkBody: Qt.alpha(ink, 0.87)
    readonly property color inkChecklist: Qt.alpha(ink, 0.86)
    readonly property color inkQuote: Qt.alpha(ink, 0.80)
    readonly property color inkCode: Qt.alpha(ink, 0.82)
    readonly property color inkMessage: Qt.alpha(ink, 0.66)
    readonly property color inkMeta: Qt.alpha(ink, 0.58)
    readonly property color inkTicked: Qt.alpha(ink, 0.52)
    readonly property color inkPlaceholder: Qt.alpha(ink, 0.34)
    readonly property color inkFieldHint: Qt.alpha(ink, 0.52)

    readonly property color destructive: "#F08A6C"
    readonly property color destructiveFillTop: "#B8452A"
    readonly property color destructiveFillFoot: "#9E361D"

    readonly property color codeGround: "#181513"
    readonly property color codeHairline: white(0.06)
    readonly property color stickyGroundTop: Qt.alpha(amber, 0.105)
    readonly property color stickyGroundFoot: Qt.alpha(amber, 0.06)
    readonly property color stickyHairline: Qt.alpha(amberSoft, 0.16)
    readonly property color addImageGround: white(0.035)
    readonly property color addImageLine: white(0.16)
    readonly property color selection: Qt.alpha(amber, 0.34)
    readonly property color caret: amberSoft
    readonly property color hitInk: Qt.lighter(amberSoft, 1.06)
    readonly property color hitGround: Qt.alpha(amber, 0.30)
    readonly property color well: Qt.rgba(0, 0, 0, 0.20)
    readonly property color focusRing: Qt.alpha(amberSoft, 0.9)
    // Almost transparent, but it must receive clicks.
    readonly property color dismissLayer: Qt.rgba(0, 0, 0, 0.01)
    readonly property color scrim: Qt.rgba(10 / 255, 7 / 255, 6 / 255, 0.52)

    readonly property color hairline: white(0.07)
    readonly property color barHairline: white(0.055)
    readonly property color divider: white(0.17)
    readonly property color hoverWash: white(0.03)
    readonly property color hoverFill: white(0.09)
    readonly property color pressFill: white(0.14)
    readonly property color takenWash: Qt.alpha(amber, 0.07)
    readonly property color takenHairline: Qt.alpha(amberSoft, 0.24)
    readonly property color rowHover: white(0.05)
    readonly property color captionGlyph: white(0.62)
    readonly property color grip: white(0.34)
    readonly property color scrollBar: white(0.19)

    readonly property color chosenRowTop: Qt.alpha(amber, 0.27)
    readonly property color chosenRowFoot: Qt.alpha(amber, 0.20)
    readonly property color chosenRowHairline: Qt.alpha(amberSoft, 0.16)

    /// White, for the places that the design gives as white with an opacity.
    function white(opacity: real) : color {
        return Qt.rgba(1, 1, 1, opacity)
    }
}
