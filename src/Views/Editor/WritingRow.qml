import QtQuick
import Pelko

/// A heading, body, quote or code block on the page.
BlockRow {
    id: root

    required property string content

    block: text

    TextBlock {
        id: text

        anchors.fill: parent
        content: root.content
        focus: true
        keys: root
        kind: root.kind
        onEdited: (value, caret) => root.page.editor.typed(root.blockID, value, caret)
    }
}
