import QtQuick
import Pelko

/// A checklist on the page.
BlockRow {
    id: root

    required property TodoListModel todos

    block: sticky

    StickyBlock {
        id: sticky

        anchors.fill: parent
        blockID: root.blockID
        editor: root.page.editor
        focus: true
        keys: root
        quiet: root.page.quiet
        seenFrom: root.page.viewTop - root.y
        seenHeight: root.page.viewHeight
        todos: root.todos
    }
}
