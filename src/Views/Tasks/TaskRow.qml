import QtQuick
import Pelko

/// One task: its check box, its text, and a button that deletes it.
FocusScope {
    id: row

    required property string docID
    required property string blockID
    required property string todoID
    required property string text
    required property bool done
    required property int index
    /// The space at both sides.
    required property int air
    /// Whether the row is the tab stop of the list.
    required property bool isTabStop

    signal toggled
    signal deleted

    Keys.onDeletePressed: deleted()
    ListView.onAdd: entry.come()
    ListView.onRemove: entry.go()
    clip: entry.presence < 1
    height: Math.max(0, entry.presence) * Math.max(Metrics.taskToggleSize, words.height + Metrics.space2)
    opacity: entry.opacity

    EntryTransition {
        id: entry

        row: row
    }

    TaskToggle {
        id: toggle

        // Aligned by the glyph, not by the larger clickable area.
        anchors { left: parent.left; leftMargin: row.air - (width - Metrics.taskToggleGlyph) / 2 + 0.5 }
        anchors.verticalCenter: parent.verticalCenter
        done: row.done
        focus: true
        focusPolicy: row.isTabStop ? Qt.TabFocus : Qt.NoFocus
        label: row.text
        onTriggered: row.toggled()
    }

    StrikethroughText {
        id: words

        Accessible.ignored: true
        anchors { left: parent.left; leftMargin: row.air + Metrics.taskTextIndent }
        anchors { right: cross.left; rightMargin: Metrics.space4; verticalCenter: parent.verticalCenter }
        color: FirePalette.white(row.done ? 0.3 : 0.8)
        elide: Text.ElideRight
        font: Typography.taskText
        lineHeight: Typography.taskLine
        maximumLineCount: 2
        strikeColor: FirePalette.white(0.25)
        struck: row.done
        text: row.text
        wrapMode: Text.Wrap

        Behavior on color { ColorAnimation { duration: Motion.fade } }
    }

    DeleteTaskButton {
        id: cross

        anchors { right: parent.right; rightMargin: row.air; verticalCenter: parent.verticalCenter }
        focusPolicy: row.isTabStop ? Qt.TabFocus : Qt.NoFocus
        label: row.text
        onTriggered: row.deleted()
    }
}
