import QtQuick
import Pelko

/// A field of one line without a background. It shows `content` and reports changes with `edited`. Pasted line breaks
/// and tabs become spaces.
TextInput {
    id: field

    required property string name
    required property string placeholder
    required property string content
    property font face: Typography.message
    readonly property bool isFull: length === maximumLength

    signal edited(string text)

    /// Clears the undo history of the field.
    function forgetTyping() : void {
        // The history is only dropped when the text changes.
        text = content + " "
        text = Qt.binding(() => field.content)
    }

    /// Reports the text on one line. The caret keeps its distance from the end, because the text may become shorter.
    function report() : void {
        const behind = length - cursorPosition
        edited(FieldText.onOneLine(text))
        cursorPosition = length - behind
    }

    /// TextInput deletes an emoji in parts.
    function eraseBackwards(event: KeyEvent) : void {
        const isPlain = (event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier)) === 0
        event.accepted = isPlain && selectedText === "" && preeditText === ""
        if (event.accepted)
            remove(cursorPosition - FieldText.backspaceLength(textBefore()), cursorPosition)
        if (event.accepted)
            report()
    }

    /// Returns the end of the text before the caret, longer than any emoji.
    function textBefore() : string {
        return getText(Math.max(0, cursorPosition - 256), cursorPosition)
    }

    // Return commits preedit text first.
    function settles(event: KeyEvent) {
        event.accepted = preeditText !== ""
        Composition.settle(field)
    }

    Keys.onEnterPressed: event => settles(event)
    Keys.onReturnPressed: event => settles(event)
    onActiveFocusChanged: if (!activeFocus) Composition.settle(field)

    text: content
    onTextEdited: report()
    Keys.onPressed: event => event.key === Qt.Key_Backspace ? eraseBackwards(event) : event.accepted = false
    // Each key lays out the whole text; for this many characters that takes some hundredths of a second.
    maximumLength: 200000
    clip: true
    activeFocusOnTab: true
    selectByMouse: true
    font: content.length > 10000 ? Typography.unshaped(face) : face
    color: FirePalette.white(0.92)
    selectionColor: FirePalette.selection
    selectedTextColor: color
    renderType: Text.NativeRendering
    cursorDelegate: Caret {}

    // A click would discard preedit text.
    PointHandler {
        onActiveChanged: if (active) Composition.settle(field)
    }

    Accessible.role: Accessible.EditableText
    Accessible.name: name
    Accessible.description: placeholder
    Accessible.focusable: true

    Text {
        anchors.fill: parent
        visible: field.length === 0 && field.preeditText === ""
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        text: field.placeholder
        textFormat: Text.PlainText
        font: field.font
        color: FirePalette.inkFieldHint
        renderType: Text.NativeRendering
        Accessible.ignored: true
    }
}
