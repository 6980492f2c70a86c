import QtQuick
import Pelko

/// A field of one line on whatever ground it is put: it shows `content` and reports what is made of it. There is no
/// limit to what may be pasted.
TextInput {
    id: field

    required property string name
    required property string placeholder
    required property string content

    signal edited(string text)

    /// Nothing that was typed can come back by undoing.
    function forgetTyping() : void {
        // Only a change of the text drops its history.
        text = content + " "
        text = Qt.binding(() => field.content)
    }

    text: content
    onTextEdited: field.edited(text)
    maximumLength: 0x7fffffff
    clip: true
    activeFocusOnTab: true
    selectByMouse: true
    font: Typography.message
    color: FirePalette.white(0.92)
    selectionColor: FirePalette.selection
    selectedTextColor: color
    renderType: Text.NativeRendering
    cursorDelegate: Caret {}

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
