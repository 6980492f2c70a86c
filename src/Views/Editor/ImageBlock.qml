import QtQuick
import Pelko

/// The picture of an image block, or a button that asks for one. `spread` carries it from its place in the column,
/// 0, to the banner across the page, 1.
BlockEditor {
    id: root

    required property PageContext page
    required property string blockID
    required property bool hasImage
    required property pictureBytes imageData
    required property bool isBanner
    required property string bannerTitle
    property real spread: 0

    // Where nothing can be drawn, there still is a block to point at.
    readonly property real ratio: Math.min(picture.aspectRatio, Metrics.highestPicture)
    readonly property real inColumn: ratio > 0 ? Math.max(1, Math.round(width * ratio)) : Metrics.emptyImageHeight

    signal imageRequested
    signal titleEdited(string value, int caret)
    signal titleFinished

    function takeFocus(todoID: string, caret: int) {
        isBanner ? title.takeFocus(caret) : hasImage ? forceActiveFocus() : add.forceActiveFocus()
        add.focusReason = Qt.TabFocusReason // only the keyboard leads here
    }

    Accessible.focusable: true
    Accessible.ignored: !hasImage
    Accessible.name: isBanner ? BlockKinds.banner.tip : BlockKinds.image.tip
    Accessible.role: Accessible.Graphic
    activeFocusOnTab: hasImage && !isBanner
    control: hasImage ? null : add
    implicitHeight: inColumn + (Metrics.bannerHeight - inColumn) * spread

    BlockPicture {
        id: picture

        anchors.horizontalCenter: parent.horizontalCenter
        blockID: root.blockID
        height: parent.height
        imageData: root.imageData
        images: root.page.images
        opacity: ready ? 1 : 0
        radius: Metrics.pictureRadius * Math.max(0, 1 - root.spread)
        width: root.isBanner || aspectRatio <= Metrics.highestPicture ? parent.width : Math.max(1, height / aspectRatio)

        Behavior on opacity {
            NumberAnimation { duration: Motion.fade }
        }
    }

    BannerOverlay {
        anchors.fill: parent
        opacity: Math.min(1, root.spread)
        visible: root.spread > 0
    }

    BannerTitleField {
        id: title

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Metrics.bannerPadding }
        blockID: root.blockID
        content: root.bannerTitle
        focus: root.isBanner
        opacity: Math.min(1, root.spread)
        page: root.page
        visible: root.isBanner
        onEdited: (value, caret) => root.titleEdited(value, caret)
        onFinished: root.titleFinished()
    }

    AddImageButton {
        id: add

        focus: !root.hasImage
        visible: !root.hasImage
        width: parent.width
        onTriggered: root.imageRequested()
    }

    FocusRing {
        controlRadius: Metrics.pictureRadius
        shown: root.activeFocus && root.walkedTo && root.hasImage && !root.isBanner
    }
}
