import QtQuick
import Pelko

/// A number on a glass capsule.
GlassPlate {
    id: badge

    required property int count

    Accessible.name: figure.text
    Accessible.role: Accessible.StaticText
    implicitHeight: Metrics.badgeHeight
    implicitWidth: Math.max(18, figure.width + 10)
    kind: Glass.badge

    DigitalTime {
        id: figure

        anchors.centerIn: parent
        color: FirePalette.white(0.95)
        font: Typography.badge
        text: String(badge.count)
    }
}
