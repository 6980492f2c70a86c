import QtQuick
import Pelko

/// The picture of an image block, as wide as the column; without data, a quiet panel in its place.
BlockEditor {
    id: root

    required property bool hasImage
    required property var imageData
    Accessible.focusable: true
    Accessible.name: BlockKinds.image.tip
    Accessible.role: Accessible.Graphic
    Keys.forwardTo: [keys]
    activeFocusOnTab: true
    implicitHeight: hasImage ? Math.round(width * picture.aspectRatio) : Metrics.emptyImageHeight

    BlockPicture {
        id: picture

        anchors.fill: parent
        imageData: root.imageData
        radius: Metrics.pictureRadius
    }

    Rectangle {
        anchors.fill: parent
        border { width: 1; color: FirePalette.hairline }
        color: FirePalette.hoverWash
        radius: Metrics.pictureRadius
        visible: !root.hasImage

        SymbolIcon {
            anchors.centerIn: parent
            color: FirePalette.inkPlaceholder
            name: BlockKinds.image.icon
            size: Metrics.chipSymbol
        }
    }

    FocusRing {
        controlRadius: Metrics.pictureRadius
        shown: root.activeFocus && root.walkedTo
    }
}
