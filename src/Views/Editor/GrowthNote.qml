import QtQuick
import Pelko

/// Shows the progress of showing a long text, if that takes longer than a second.
GlassSurface {
    id: root

    /// The text that is being shown, or null.
    required property BlockText text

    readonly property int percent: text ? Math.floor(100 * text.shownLength / Math.max(1, text.content.length)) : 0
    /// In milliseconds.
    property int patience: 1000
    property bool isLate: false

    implicitHeight: Metrics.capsuleHeight
    implicitWidth: words.width + 2 * Metrics.space12
    kind: Glass.capsule
    visible: isLate && text !== null
    onTextChanged: if (!text) isLate = false

    Timer {
        interval: root.patience
        running: root.text !== null && !root.isLate
        onTriggered: root.isLate = true
    }

    Text {
        id: words

        Accessible.name: text
        Accessible.role: Accessible.StaticText
        anchors.centerIn: parent
        color: FirePalette.white(0.8)
        font: Typography.capsule
        renderType: Text.NativeRendering
        text: qsTr("Showing a long text: %1 %. Ctrl+Z takes a paste back.").arg(root.percent)
        textFormat: Text.PlainText
    }
}
