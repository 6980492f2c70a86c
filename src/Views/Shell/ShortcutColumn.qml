pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// Headings, each followed by actions and their keys.
Column {
    id: column

    required property var lines

    Repeater {
        model: column.lines

        Item {
            id: line

            required property shortcutLine modelData
            required property int index

            readonly property bool isHeading: modelData.keys.length === 0
            readonly property real air: isHeading && index > 0 ? Metrics.space12 : 0

            Accessible.name: isHeading ? modelData.title : modelData.title + ", " + Array.from(modelData.keys).join("+")
            Accessible.role: isHeading ? Accessible.Heading : Accessible.StaticText
            height: air + Math.max(isHeading ? Metrics.sheetHeading : Metrics.sheetRow, label.height + Metrics.space8)
            width: column.width

            Text {
                id: label

                Accessible.ignored: true
                anchors.left: parent.left
                color: line.isHeading ? FirePalette.amberSoft : FirePalette.inkBody
                font: line.isHeading ? Typography.caption : Typography.menuRow
                text: line.isHeading ? line.modelData.title.toUpperCase() : line.modelData.title
                textFormat: Text.PlainText
                width: Math.min(implicitWidth, line.width - keys.width - Metrics.space12)
                wrapMode: Text.Wrap
                y: line.air + Math.round((line.height - line.air - height) / 2)
            }

            Row {
                id: keys

                anchors { right: parent.right; verticalCenter: parent.verticalCenter }
                spacing: Metrics.space4

                Repeater {
                    model: line.modelData.keys

                    KeyCap {
                        required property string modelData

                        label: modelData
                    }
                }
            }
        }
    }
}
