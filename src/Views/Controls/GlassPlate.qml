import QtQuick
import Pelko

/// The surface of a piece of glass without the backdrop: fill, sheen and rim. `lift` is the opacity of a white overlay
/// for hover and press. Set `tinted` if the backdrop is blurred. Drawn by a shader, or with less detail without one.
Item {
    id: plate

    required property GlassKind kind
    property bool tinted: false
    property real radius: height / 2
    property real lift: 0

    readonly property color ground: tinted ? kind.tint : kind.plain
    readonly property color sheenTop: tinted || kind.sheenOnPlain ? kind.sheenTop : "transparent"
    readonly property color sheenFoot: tinted || kind.sheenOnPlain ? kind.sheenFoot : "transparent"
    readonly property bool shaded: GraphicsInfo.api !== GraphicsInfo.Software
                                   && GraphicsInfo.api !== GraphicsInfo.Unknown

    ShaderEffect {
        readonly property real cornerRadius: Math.min(plate.radius, width / 2, height / 2)
        readonly property real pixel: 1 / Screen.devicePixelRatio
        readonly property vector2d plateSize: Qt.vector2d(width, height)
        readonly property color ground: plate.ground
        readonly property color sheenTop: plate.sheenTop
        readonly property color sheenFoot: plate.sheenFoot
        readonly property color rimTop: plate.kind.rimTop
        readonly property color rimMiddle: plate.kind.rimMiddle
        readonly property color rimFoot: plate.kind.rimFoot

        anchors.fill: parent
        visible: plate.shaded
        fragmentShader: plate.shaded ? "qrc:/qt/qml/Pelko/shaders/plate.frag.qsb" : ""
    }

    Rectangle {
        anchors.fill: parent
        visible: !plate.shaded
        radius: plate.radius
        color: plate.ground

        Rectangle {
            anchors.fill: parent
            radius: plate.radius
            border.color: plate.kind.hairline
            gradient: Gradient {
                GradientStop { position: 0; color: plate.sheenTop }
                GradientStop { position: 1; color: plate.sheenFoot }
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        visible: plate.lift > 0
        radius: plate.radius
        color: FirePalette.white(plate.lift)
    }
}
