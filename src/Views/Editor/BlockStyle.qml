import QtQuick
import Pelko

/// The font, colour and line height of a text-like block.
QtObject {
    required property string kind

    readonly property font face: kind === "textLarge" ? Typography.heading
                                 : kind === "quote" ? Typography.quote
                                 : kind === "code" ? Typography.code : Typography.body
    readonly property real lineHeight: kind === "textLarge" ? Typography.headingLine
                                       : kind === "quote" ? Typography.quoteLine
                                       : kind === "code" ? Typography.codeLine : Typography.bodyLine
    readonly property color ink: kind === "textLarge" ? FirePalette.inkHeading
                                 : kind === "quote" ? FirePalette.inkQuote
                                 : kind === "code" ? FirePalette.inkCode : FirePalette.inkBody
}
