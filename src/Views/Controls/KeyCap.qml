import QtQuick
import Pelko

/// A key, drawn as on a keyboard.
Rectangle {
    id: cap

    required property string label

    border.color: FirePalette.white(0.10)
    color: FirePalette.white(0.06)
    height: Metrics.keyCapHeight
    radius: Metrics.keyCapRadius
    width: Math.max(height, Math.ceil(text.implicitWidth) + Metrics.space14)

    Text {
        id: text

        Accessible.ignored: true
        anchors.centerIn: parent
        color: FirePalette.inkBody
        font: Typography.capsule
        text: cap.label
        textFormat: Text.PlainText
    }
}
