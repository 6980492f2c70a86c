import Pelko

/// A divider on the page.
BlockRow {
    id: root

    block: divider

    DividerBlock {
        id: divider

        anchors.fill: parent
        focus: true
    }
}
