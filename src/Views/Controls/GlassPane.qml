pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The blurred backdrop of a glass surface: rendered at a quarter of its size, which is cheaper and softer, then
/// blurred horizontally and vertically, and cut to the shape.
Item {
    id: pane

    required property Item backdrop
    required property real radius
    required property real blur
    required property real saturation

    readonly property real shrink: 4
    readonly property int texelsWide: Math.max(1, Math.ceil(width / shrink))
    readonly property int texelsHigh: Math.max(1, Math.ceil(height / shrink))
    // The nine samples make a Gaussian of 3.35 texels; the wanted radius determines their distance.
    readonly property real step: blur / 2 / shrink / 3.35

    function look() : void {
        const corner = mapToItem(backdrop, 0, 0)
        behind.sourceRect = Qt.rect(corner.x, corner.y, pane.width, pane.height)
    }

    Connections {
        target: pane.Window.window
        enabled: pane.visible && pane.backdrop
        function onAfterAnimating() { pane.look() }
    }

    Shrunk {
        id: behind

        sourceItem: pane.backdrop
    }

    BlurPass {
        id: across

        source: behind
        stride: Qt.vector2d(pane.step / pane.texelsWide, 0)
    }

    BlurPass {
        id: down

        source: Shrunk { sourceItem: across }
        stride: Qt.vector2d(0, pane.step / pane.texelsHigh)
    }

    ShaderEffect {
        readonly property ShaderEffectSource source: Shrunk { sourceItem: down }
        readonly property vector2d texel: Qt.vector2d(1 / pane.texelsWide, 1 / pane.texelsHigh)
        readonly property real cornerRadius: Math.min(pane.radius, width / 2, height / 2)
        readonly property real pixel: 1 / Screen.devicePixelRatio
        readonly property real saturation: pane.saturation
        // The window's background, for transparent parts of the backdrop.
        readonly property color under: FirePalette.deepBackground
        readonly property vector2d plateSize: Qt.vector2d(width, height)

        anchors.fill: parent
        fragmentShader: "qrc:/qt/qml/Pelko/shaders/pane.frag.qsb"
    }

    component Shrunk: ShaderEffectSource {
        textureSize { width: pane.texelsWide; height: pane.texelsHigh }
        visible: false
        smooth: true
    }

    component BlurPass: ShaderEffect {
        required property ShaderEffectSource source
        required property vector2d stride

        width: pane.texelsWide
        height: pane.texelsHigh
        visible: false
        fragmentShader: "qrc:/qt/qml/Pelko/shaders/blur.frag.qsb"
    }
}
