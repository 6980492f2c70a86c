import QtQuick
import Pelko

/// The header of a checklist.
Row {
    spacing: Metrics.space8

    SymbolIcon {
        anchors.verticalCenter: label.verticalCenter
        color: FirePalette.amberSoft
        name: BlockKinds.checklist.icon
        size: Metrics.chipSymbol
    }

    Text {
        id: label

        color: FirePalette.amberSoft
        font: Typography.stickyLabel
        text: qsTr("Sticky")
    }
}
