import Pelko

/// A round glass button with the symbol `icon.name`. A change of the symbol is animated.
PressableControl {
    id: button

    implicitWidth: Metrics.timerButtonSize
    implicitHeight: Metrics.timerButtonSize
    pressScale: 0.94

    background: GlassPlate {
        kind: Glass.plain
        lift: 0.06 * button.hoverAmount + 0.06 * button.pressAmount
    }

    AnimatedSymbol {
        anchors.centerIn: parent
        name: button.icon.name
        size: Metrics.chipSymbol
        color: FirePalette.white(0.86 + 0.1 * Math.min(1, button.hoverAmount))
    }
}
