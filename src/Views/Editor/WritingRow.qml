import QtQuick
import Pelko

/// A heading, body, quote or code block on the page.
BlockRow {
    id: root

    required property string content

    block: text

    TextBlock {
        id: text

        blockID: root.blockID
        content: root.content
        focus: true
        kind: root.kind
        page: root.page
        // With anchors it would have no width when its field lays out the text.
        width: root.bodyWidth
        onEdited: (value, caret) => root.page.editor.typed(root.blockID, value, caret)
    }
}
