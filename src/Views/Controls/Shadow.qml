import QtQuick
import Pelko

/// The shadow of a glass surface: a wide one and a narrow one.
Item {
    id: shadow

    required property GlassKind kind
    property real radius: 0

    SoftShadow {
        anchors.fill: parent
        radius: shadow.radius
        drop: shadow.kind.shadowDrop
        blur: shadow.kind.shadowBlur
        color: Qt.alpha(shadow.kind.shadowColor, shadow.kind.shadowStrength)
    }

    SoftShadow {
        anchors.fill: parent
        visible: shadow.kind.shadowBlur > 0
        radius: shadow.radius
        drop: 2
        blur: 6
        color: Qt.rgba(0, 0, 0, 0.35)
    }
}
