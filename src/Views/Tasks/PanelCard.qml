import QtQuick
import Pelko

/// The look that all cards of the tasks panel share. What is put into it stands in a column.
Item {
    id: card

    default property alias content: column.data
    property alias spacing: column.spacing
    /// What shines through: an item behind the card that does not contain it.
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
