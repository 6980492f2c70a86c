import QtQuick

/// Centred text of at most `widest` pixels, wrapped into lines of similar length.
Text {
    id: text

    required property real widest

    readonly property real evenWidth: Math.ceil(Math.min(widest, oneLine.implicitWidth / full.lineCount * 1.06 + 8))

    width: even.lineCount === full.lineCount ? evenWidth : widest
    horizontalAlignment: Text.AlignHCenter
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    lineHeightMode: Text.FixedHeight

    Text {
        id: oneLine

        visible: false
        text: text.text
        textFormat: Text.PlainText
        font: text.font
    }

    Text {
        id: full

        visible: false
        width: text.widest
        text: text.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: text.font
    }

    Text {
        id: even

        visible: false
        width: text.evenWidth
        text: text.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font: text.font
    }
}
