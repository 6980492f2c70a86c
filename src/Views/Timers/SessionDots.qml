pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The completed sessions: a dot for each of the first four, and the number of further ones.
Row {
    id: root

    /// The number of dots.
    required property int count
    /// The number of sessions.
    required property int total
    required property string more

    spacing: Metrics.space8
    Accessible.role: Accessible.StaticText
    Accessible.name: total === 0 ? "" : qsTr("Sessions done: %n", "", total)
    Accessible.ignored: count === 0

    Repeater {
        model: root.count

        Rectangle {
            anchors.verticalCenter: parent?.verticalCenter
            width: Metrics.sessionDot
            height: Metrics.sessionDot
            radius: Metrics.sessionDot / 2
            color: Qt.alpha(FirePalette.amber, 0.55)
        }
    }

    Text {
        visible: root.more !== ""
        height: parent.height
        verticalAlignment: Text.AlignVCenter
        text: root.more
        textFormat: Text.PlainText
        font: Typography.sessionCount
        color: FirePalette.white(0.4)
        Accessible.ignored: true
    }
}
