import QtQuick
import Pelko

/// What the rows of a page know of it, and what they ask of it.
QtObject {
    required property EditorViewModel editor
    required property PageCaret caret
    /// Nothing but the blocks is shown, whatever is pointed at.
    property bool quiet: false
    /// The width of the text column.
    required property real measure
    /// The part of the page that is in sight, in the coordinates of the rows.
    property real viewTop: 0
    required property real viewHeight
    /// The long text that is being shown, if any.
    property BlockText growingText: null
    /// The decoded pictures of this page.
    required property ImageCache images

    /// The focus came to a row.
    signal focusEntered(int row)
    /// The keyboard walks out of a row.
    signal walkedOut(int row, bool forward)
    /// The writer should see the caret.
    signal revealRequested
    /// Blocks are about to change places.
    signal reorderBegan
    /// All rows stand in their new places.
    signal reorderEnded
    signal menuRequested(Item row, Item item, point position)
}
