import QtQuick
import Pelko

/// Says below a field of one line that what was pasted did not fit.
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
