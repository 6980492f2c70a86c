import QtQuick
import Pelko

/// A heading, body, quote or code block. They share one component, so that a block whose kind changes keeps its field
/// and caret.
BlockRow {
    id: root

    required property string content

    readonly property bool isQuote: kind === "quote"
    readonly property bool isCode: kind === "code"

    block: editor

    BlockStyle {
        id: style

        kind: root.kind
    }

    BlockEditor {
        id: editor

        function takeFocus(address: textAddress, caret: int) {
            field.takeFocus(caret)
        }

        firstLine: field.y + style.lineHeight / 2
        focus: true
        implicitHeight: field.height + 2 * field.y + (rest.visible ? rest.height : 0)
        // With anchors, the width would be 0 when the field lays out the text.
        width: root.bodyWidth

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
            address: root.address
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
}
