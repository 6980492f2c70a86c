import QtQuick
import Pelko

/// The text field of blocks and checklist entries. It shows `content`, reports changes to the page, and is never
/// rewritten while an input method composes in it.
TextEdit {
    id: root

    required property string content
    required property string placeholder
    required property PageContext page
    required property textAddress address

    /// Whether the text is too tall to be shown completely, and how much of it is hidden.
    readonly property alias isCut: bridge.isCut
    property alias maximumHeight: bridge.maximumHeight
    property alias isSingleLine: place.isSingleLine
    readonly property int hiddenLength: content.length - bridge.shownLength

    property real lineHeight: 0

    /// Return was pressed in a field of one line.
    signal finished

    /// -1 is the end.
    function takeFocus(caret: int) {
        const end = bridge.isGrowing ? content.length : length
        const position = caret < 0 ? end : Math.min(caret, end)
        place.select(position, position)
        forceActiveFocus()
    }

    function showAll() {
        while (bridge.isGrowing)
            bridge.showMore()
    }

    /// Sends the keys that wait for the rest of the text at once.
    function takeWaitingInput() {
        if (!place.hasWaitingInput)
            return
        showAll()
        place.takeWaitingInput()
    }

    // Only the preedit text is reliable: after a commit, `inputMethodComposing` can stay true.
    function reportUnlessComposing() {
        if (preeditText === "")
            bridge.report(cursorPosition)
    }

    /// If a change of the text is not reported yet, the caret is reported with it.
    function reportCaret() {
        if (activeFocus && length === bridge.shownLength)
            page.editor.caretMoved(address, cursorPosition)
    }

    function reveal() {
        if (activeFocus)
            page?.revealRequested()
    }

    Accessible.role: Accessible.EditableText
    Accessible.multiLine: true
    Accessible.focusable: true
    activeFocusOnTab: true
    cursorDelegate: Caret {}
    // The implicit height of an empty TextEdit is that of the font, not of the line.
    height: length === 0 && lineHeight > 0 ? lineHeight : implicitHeight
    // A selection in this field can be part of one whose caret is in another field.
    persistentSelection: true
    renderType: Text.NativeRendering
    selectByMouse: true
    selectedTextColor: color
    selectionColor: FirePalette.selection
    textFormat: TextEdit.PlainText
    wrapMode: bridge.hasLongWord ? TextEdit.WrapAnywhere : TextEdit.Wrap
    onActiveFocusChanged: {
        activeFocus ? reportCaret() : Composition.settle(root)
        reveal()
    }
    onCursorPositionChanged: reportCaret()
    onCursorRectangleChanged: reveal()
    onPreeditTextChanged: reportUnlessComposing()
    onTextChanged: reportUnlessComposing()

    // Declared above the text, because objects are completed in reverse order: the text must be set before a selection.
    FieldCaret {
        id: place

        address: root.address
        isCut: bridge.isCut
        page: root.page?.caret ?? null
        waits: bridge.isGrowing
        onFinished: root.finished()
    }

    BlockText {
        id: bridge

        content: root.content
        document: root.textDocument
        lineHeight: root.lineHeight
        onEdited: value => root.page.editor.typed(root.address, value, root.cursorPosition)
    }

    // Between two queued keys the page scrolls to the caret, as it does between typed keys.
    Timer {
        interval: 30
        repeat: true
        running: place.hasWaitingInput && !place.waits
        onTriggered: place.sendNextInput()
    }

    TextGrowth {
        page: root.page
        text: bridge
    }

    // Shows the selection of an empty line.
    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        color: root.selectionColor
        height: Math.round(root.font.pixelSize * 1.2)
        visible: place.selectedEmpty
        width: Metrics.space6
    }

    Text {
        Accessible.ignored: true
        anchors { left: parent.left; right: parent.right }
        color: FirePalette.inkPlaceholder
        elide: Text.ElideRight
        font: root.font
        renderType: Text.NativeRendering
        text: root.placeholder
        visible: root.length === 0 && root.preeditText === ""
        // In a line of fixed height the letters are at the bottom.
        y: root.lineHeight > 0 ? root.lineHeight - height : 0
    }
}
