import QtQuick
import Pelko

/// The message below a field of one line that a pasted text was too long.
Text {
    required property LineField field

    Accessible.name: text
    Accessible.role: Accessible.AlertMessage
    color: FirePalette.destructive
    font: Typography.sparkText
    text: qsTr("This field holds only %1 characters.").arg(field.maximumLength.toLocaleString(Qt.locale(), "f", 0))
    textFormat: Text.PlainText
    visible: field.isFull
    wrapMode: Text.Wrap
}
