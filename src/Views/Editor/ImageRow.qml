import QtQuick
import Pelko

/// A picture on the page.
BlockRow {
    id: root

    required property bool hasImage
    required property var imageData

    block: image

    ImageBlock {
        id: image

        anchors.fill: parent
        focus: true
        hasImage: root.hasImage
        imageData: root.imageData
        keys: root
    }
}
