import QtQuick

/// The parameters of one kind of glass: `tint` over the blurred background, or `plain` where shaders are not available,
/// and the shadow.
QtObject {
    property color tint
    property color plain
    property color sheenTop: Qt.rgba(1, 1, 1, 0.085)
    property color sheenFoot: Qt.rgba(1, 1, 1, 0.035)
    property color rimTop: Qt.rgba(1, 1, 1, 0.20)
    property color rimMiddle: Qt.rgba(1, 1, 1, 0.06)
    property color rimFoot: Qt.rgba(1, 1, 1, 0.09)
    property color hairline: Qt.rgba(1, 1, 1, 0.10)
    // The plain colours of most kinds include the sheen.
    property bool sheenOnPlain: false
    property real blur: 0
    property real saturation: 1
    property real shadowDrop: 0
    property real shadowBlur: 0
    property real shadowStrength: 0
    property color shadowColor: "black"
}
