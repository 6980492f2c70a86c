import QtQuick
import Pelko

/// The header of a card: symbol, title and an optional count.
Item {
    id: header

    required property string symbol
    required property string caption
    property font font: Typography.cardCaption
    /// The opacities of the title and of the symbol.
    property real ink: 0.6
    property real glow: 0.85
    property int count: 0

    width: parent?.width ?? 0
    implicitHeight: Metrics.space14

    SymbolIcon {
        id: icon

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        color: Qt.alpha(FirePalette.amber, header.glow)
        name: header.symbol
        size: 10
    }

    Text {
        Accessible.name: text
        Accessible.role: Accessible.Heading
        anchors { left: icon.right; leftMargin: Metrics.space8; verticalCenter: parent.verticalCenter }
        color: FirePalette.white(header.ink)
        font: header.font
        text: header.caption
        textFormat: Text.PlainText
    }

    CountBadge {
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        count: header.count
        visible: count > 0
    }
}
