import QtQuick
import Pelko

/// A field of one line on whatever ground it is put: it shows `content` and reports what is made of it. Line breaks and
/// tabs that are pasted become spaces.
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
        // Only a change of the text drops its history.
        text = content + " "
        text = Qt.binding(() => field.content)
    }

    /// Reports the text on one line. The caret keeps its distance from the end, because the text may become shorter.
    function report() : void {
        const behind = length - cursorPosition
        edited(FieldText.onOneLine(text))
        cursorPosition = length - behind
    }

    /// The field by itself would delete an emoji in pieces.
    function eraseBackwards(event: KeyEvent) : void {
        const isPlain = (event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier)) === 0
        event.accepted = isPlain && selectedText === "" && preeditText === ""
        if (event.accepted)
            remove(cursorPosition - FieldText.backspaceLength(textBefore()), cursorPosition)
        if (event.accepted)
            report()
    }

    /// The last of the text before the caret; as much as one character may be made of.
    function textBefore() : string {
        return getText(Math.max(0, cursorPosition - 256), cursorPosition)
    }

    // Return ends a composition before it ends the line.
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
    // With each key all of the text is laid out; of this many characters in some hundredths of a second.
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

    // Commit preedit text before a click, which would discard it.
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
