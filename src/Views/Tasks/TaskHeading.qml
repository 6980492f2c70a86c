import QtQuick
import Pelko

/// The title of a document above its tasks.
Item {
    id: heading

    required property string text
    required property int index

    readonly property int line: 12

    ListView.onAdd: entry.come()
    ListView.onRemove: entry.go()
    clip: entry.presence < 1
    height: Math.max(0, entry.presence) * (index === 0 ? line : line + Metrics.space6)
    opacity: entry.opacity

    EntryTransition {
        id: entry

        row: heading
    }

    Text {
        Accessible.name: text
        Accessible.role: Accessible.Heading
        anchors { bottom: parent.bottom; left: parent.left; leftMargin: Metrics.space6 }
        color: FirePalette.white(0.4)
        elide: Text.ElideRight
        font: Typography.taskGroup
        height: heading.line
        maximumLineCount: 1
        text: heading.text.replace(/\s+/g, " ")
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
        width: parent.width - 2 * Metrics.space6
    }
}
