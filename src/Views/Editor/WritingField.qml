import QtQuick
import Pelko

/// A field to write in, as blocks and checklist entries share it: it shows `content`, tells the
/// editor what the writer makes of it, and never rewrites it under an input method that is composing.
TextEdit {
    id: root

    required property string content
    required property string placeholder
    required property PageContext page
    required property textAddress address

    /// Whether the text is too tall to be shown as a whole, and how much of it is not.
    readonly property alias isCut: bridge.isCut
    property alias maximumHeight: bridge.maximumHeight
    property alias isSingleLine: place.isSingleLine
    readonly property int hiddenLength: content.length - bridge.shownLength

    property real lineHeight: 0

    /// The writer is done with a field of one line.
    signal finished

    /// -1 stands for the end.
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

    /// The keys that wait for the rest of the text get it at once.
    function takeWaitingInput() {
        if (!place.hasWaitingInput)
            return
        showAll()
        place.takeWaitingInput()
    }

    // Only preedit text tells that something is being composed: after a commit, `inputMethodComposing` can stay true.
    function reportUnlessComposing() {
        if (preeditText === "")
            bridge.report(cursorPosition)
    }

    /// While a text that was typed is not reported yet, its caret goes with it.
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
    // What is selected in one field can be part of a selection whose caret is in another.
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

    // Above the text, because what is created later is completed first: it selects in a text that is there.
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

    // Between two keys the page comes to where the caret is, as between two that are typed.
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

    // The end of a line that has nothing else to be selected.
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
        // A line of fixed height has its letters at the foot.
        y: root.lineHeight > 0 ? root.lineHeight - height : 0
    }
}
