import QtQuick
import Pelko

/// The base of all cards of the tasks panel. Its children are laid out in a column.
Item {
    id: card

    default property alias content: column.data
    property alias spacing: column.spacing
    /// The item that is blurred behind the glass; must not contain the card.
    property Item backdrop: null

    implicitHeight: column.height + 2 * Metrics.cardPaddingY

    GlassSurface {
        anchors.fill: parent
        backdrop: card.backdrop
        kind: Glass.card
        radius: Metrics.cardRadius
    }

    Column {
        id: column

        x: Metrics.cardPaddingX
        y: Metrics.cardPaddingY
        width: parent.width - 2 * Metrics.cardPaddingX
    }
}
