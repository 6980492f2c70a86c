pragma Singleton

import QtQuick
import Pelko

/// The kinds of glass.
QtObject {
    readonly property GlassKind chip: GlassKind {
        sheenOnPlain: true
        tint: "transparent"
        plain: "transparent"
        sheenTop: FirePalette.white(0.05)
        sheenFoot: FirePalette.white(0.045)
        rimTop: FirePalette.white(0.13)
        rimMiddle: FirePalette.white(0.06)
        rimFoot: FirePalette.white(0.05)
        hairline: FirePalette.white(0.075)
    }
    readonly property GlassKind badge: GlassKind {
        sheenOnPlain: true
        tint: FirePalette.white(0.10)
        plain: FirePalette.white(0.10)
        sheenTop: FirePalette.white(0.05)
        sheenFoot: FirePalette.white(0.02)
        rimTop: FirePalette.white(0.16)
        rimMiddle: FirePalette.white(0.08)
        rimFoot: FirePalette.white(0.06)
    }
    readonly property GlassKind clear: GlassKind {
        tint: Qt.rgba(1, 1, 1, 0.05)
        plain: FirePalette.white(0.08)
        blur: 24
        saturation: 1.4
        shadowDrop: 6
        shadowBlur: 18
        shadowStrength: 0.24
    }
    readonly property GlassKind capsule: GlassKind {
        tint: Qt.rgba(24 / 255, 20 / 255, 18 / 255, 0.46)
        plain: "#2B2724"
        blur: 24
        saturation: 1.4
        shadowDrop: 6
        shadowBlur: 18
        shadowStrength: 0.24
    }
    readonly property GlassKind card: GlassKind {
        tint: Qt.rgba(0, 0, 0, 0.50)
        plain: Qt.rgba(29 / 255, 22 / 255, 19 / 255, 0.90)
        blur: 18
        saturation: 1.3
        shadowDrop: 6
        shadowBlur: 18
        shadowStrength: 0.28
    }
    readonly property GlassKind menu: GlassKind {
        tint: Qt.rgba(27 / 255, 23 / 255, 21 / 255, 0.80)
        plain: "#282421"
        blur: 28
        saturation: 1.5
        shadowDrop: 18
        shadowBlur: 50
        shadowStrength: 0.55
    }
    readonly property GlassKind overlay: GlassKind {
        tint: Qt.rgba(27 / 255, 22 / 255, 19 / 255, 0.58)
        plain: "#282421"
        blur: 30
        saturation: 1.5
        shadowDrop: 30
        shadowBlur: 80
        shadowStrength: 0.62
    }
    readonly property GlassKind dialog: GlassKind {
        tint: Qt.rgba(29 / 255, 25 / 255, 23 / 255, 0.88)
        plain: "#2A2623"
        blur: 30
        saturation: 1.3
        shadowDrop: 24
        shadowBlur: 70
        shadowStrength: 0.60
    }
    readonly property GlassKind warm: GlassKind {
        sheenOnPlain: true
        tint: Qt.rgba(24 / 255, 20 / 255, 18 / 255, 0.46)
        plain: "#231C18"
        sheenTop: Qt.alpha(FirePalette.amberSoft, 0.29)
        sheenFoot: Qt.alpha(FirePalette.ember, 0.30)
        rimTop: Qt.alpha(FirePalette.amberSoft, 0.42)
        rimMiddle: Qt.alpha(FirePalette.amberSoft, 0.26)
        rimFoot: Qt.alpha(FirePalette.amber, 0.16)
        hairline: Qt.alpha(FirePalette.amberSoft, 0.26)
        blur: 24
        saturation: 1.4
        shadowDrop: 8
        shadowBlur: 26
        shadowStrength: 0.34
        shadowColor: FirePalette.ember
    }
    readonly property GlassKind plain: GlassKind {
        sheenOnPlain: true
        tint: FirePalette.white(0.07)
        plain: FirePalette.white(0.07)
        sheenTop: FirePalette.white(0.045)
        sheenFoot: FirePalette.white(0.01)
        rimTop: FirePalette.white(0.13)
        rimMiddle: FirePalette.white(0.06)
        rimFoot: FirePalette.white(0.05)
    }
    readonly property GlassKind destructive: GlassKind {
        sheenOnPlain: true
        tint: FirePalette.destructiveFillFoot
        plain: FirePalette.destructiveFillFoot
        sheenTop: FirePalette.destructiveFillTop
        sheenFoot: FirePalette.destructiveFillFoot
        rimTop: FirePalette.white(0.22)
        rimMiddle: FirePalette.white(0.10)
        rimFoot: FirePalette.white(0.06)
    }
}
