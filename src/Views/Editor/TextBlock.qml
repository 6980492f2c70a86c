import QtQuick
import Pelko

/// The editor of a heading, a body, a quote or a code block. One component for the four, so that a block
/// whose kind changes under the caret keeps its field.
BlockEditor {
    id: root

    required property PageContext page
    required property string blockID
    required property string kind
    required property string content

    readonly property bool isQuote: kind === "quote"
    readonly property bool isCode: kind === "code"

    signal edited(string value, int caret)

    function takeFocus(todoID: string, caret: int) {
        field.takeFocus(caret)
    }

    firstLine: field.y + style.lineHeight / 2
    implicitHeight: field.implicitHeight + 2 * field.y + (rest.visible ? rest.height : 0)

    BlockStyle {
        id: style

        kind: root.kind
    }

    Rectangle {
        anchors.fill: parent
        border { width: 1; color: FirePalette.codeHairline }
        color: FirePalette.codeGround
        radius: Metrics.codeRadius
        visible: root.isCode
    }

    Rectangle {
        height: parent.height
        radius: Metrics.quoteBarRadius
        visible: root.isQuote
        width: Metrics.quoteBarWidth

        gradient: Gradient {
            GradientStop { position: 0; color: FirePalette.amberSoft }
            GradientStop { position: 1; color: FirePalette.ember }
        }
    }

    WritingField {
        id: field

        Accessible.description: placeholder
        Accessible.name: BlockKinds.named(root.kind).tip
        blockID: root.blockID
        color: style.ink
        content: root.content
        focus: true
        font: style.face
        lineHeight: style.lineHeight
        page: root.page
        placeholder: BlockKinds.named(root.kind).placeholder
        tabStopDistance: Metrics.codeTab
        width: parent.width - 2 * x
        x: root.isCode ? Metrics.codePaddingX : root.isQuote ? Metrics.quoteIndent : 0
        y: root.isCode ? Metrics.codePaddingY : 0
        onEdited: (value, caret) => root.edited(value, caret)
    }

    Text {
        id: rest

        Accessible.name: text
        Accessible.role: Accessible.StaticText
        color: FirePalette.inkPlaceholder
        font: Typography.body
        renderType: Text.NativeRendering
        text: qsTr("This text is too long to be shown as a whole. %Ln more character(s) are kept.", "", field.hiddenLength)
        textFormat: Text.PlainText
        visible: field.isCut
        width: field.width
        wrapMode: Text.Wrap
        x: field.x
        y: field.y + field.height
    }
}
