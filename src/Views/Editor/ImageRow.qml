import QtQuick
import Pelko

/// A picture on the page, in the column or across it.
BlockRow {
    id: root

    required property pictureBytes imageData
    required property bool isBanner
    required property string bannerTitle

    block: image
    bodyWidth: page.measure + (width - page.measure) * spread.value

    SpringFollower {
        id: spread

        goal: root.isBanner ? 1 : 0
        instant: Motion.reduced
    }

    ImageBlock {
        id: image

        anchors.fill: parent
        bannerTitle: root.bannerTitle
        blockID: root.blockID
        focus: true
        hasImage: root.hasImage
        imageData: root.imageData
        isBanner: root.isBanner
        page: root.page
        spread: spread.value
        onImageRequested: root.page.editor.imageImport.addImage(root.blockID)
        onTitleEdited: (value, caret) => root.page.editor.typedBannerTitle(root.blockID, value, caret)
        onTitleFinished: root.page.walkedOut(root.index, true)
    }
}
