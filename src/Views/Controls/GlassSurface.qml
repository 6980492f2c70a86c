import QtQuick
import Pelko

/// A piece of glass of the given kind with its shadow. If `backdrop` is an item, which must not contain the glass, it
/// is seen blurred through the glass. Without a backdrop or without shaders the plain colour is used.
Item {
    id: glass

    required property GlassKind kind
    property Item backdrop: null
    property real radius: height / 2
    property bool casts: true
    property alias lift: plate.lift

    readonly property bool seesThrough: plate.shaded && backdrop !== null && kind.blur > 0

    Shadow {
        anchors.fill: parent
        visible: glass.casts && glass.kind.shadowBlur > 0
        kind: glass.kind
        radius: glass.radius
    }

    GlassPane {
        anchors.fill: parent
        visible: glass.seesThrough
        backdrop: glass.seesThrough ? glass.backdrop : null
        radius: glass.radius
        blur: glass.kind.blur
        saturation: glass.kind.saturation
    }

    GlassPlate {
        id: plate

        anchors.fill: parent
        kind: glass.kind
        radius: glass.radius
        tinted: glass.seesThrough
    }
}
