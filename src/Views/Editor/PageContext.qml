import QtQuick
import Pelko

/// The properties of the page that its rows use, and the signals that rows send to it.
QtObject {
    required property EditorViewModel editor
    required property PageCaret caret
    /// Whether nothing but the blocks is shown, even under the pointer.
    property bool quiet: false
    /// The width of the text column.
    required property real measure
    /// The top of the visible part of the page, in the coordinates of the rows.
    property real viewTop: 0
    required property real viewHeight
    /// The long text that is being shown in slices, or null.
    property BlockText growingText: null
    /// The decoded pictures of this page.
    required property ImageCache images

    /// A row got the focus.
    signal focusEntered(int row)
    /// The focus leaves a row.
    signal walkedOut(int row, bool forward)
    /// The caret must be visible.
    signal revealRequested
    /// Blocks are about to change places.
    signal reorderBegan
    /// All rows have their new places.
    signal reorderEnded
    signal menuRequested(Item row, Item item, point position)
}
