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
        focus: true
        page: root.page
        seenFrom: root.page.viewTop - root.y
        seenHeight: root.page.viewHeight
        todos: root.todos
    }
}
