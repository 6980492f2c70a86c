import QtQuick
import Pelko

/// A heading, body, quote or code block on the page.
BlockRow {
    id: root

    required property string content

    block: text

    TextBlock {
        id: text

        content: root.content
        focus: true
        keys: root
        kind: root.kind
        // With anchors it would have no width when its field lays out the text.
        width: root.bodyWidth
        onEdited: (value, caret) => root.page.editor.typed(root.blockID, value, caret)
    }
}
