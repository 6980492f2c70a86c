import QtQuick
import Pelko

/// A picture, or a button to choose one. `spread` is the progress from its place in the text column, 0, to the banner
/// across the page, 1.
BlockRow {
    id: root

    required property pictureBytes imageData
    required property bool isBanner
    required property string bannerTitle

    // Without a picture the block keeps a height, so that it can be hovered.
    readonly property real ratio: Math.min(picture.aspectRatio, Metrics.highestPicture)
    readonly property real inColumn: ratio > 0 ? Math.max(1, Math.round(bodyWidth * ratio)) : Metrics.emptyImageHeight

    block: editor
    bodyWidth: page.measure + (width - page.measure) * spread.value

    SpringFollower {
        id: spread

        goal: root.isBanner ? 1 : 0
        instant: Motion.reduced
    }

    BlockEditor {
        id: editor

        function takeFocus(address: textAddress, caret: int) {
            root.isBanner ? title.takeFocus(caret) : root.hasImage ? forceActiveFocus() : add.forceActiveFocus()
            add.focusReason = Qt.TabFocusReason // only the keyboard leads here
        }

        Accessible.focusable: true
        Accessible.ignored: !root.hasImage
        Accessible.name: root.isBanner ? BlockKinds.banner.tip : BlockKinds.image.tip
        Accessible.role: Accessible.Graphic
        activeFocusOnTab: root.hasImage && !root.isBanner
        anchors.fill: parent
        control: root.hasImage ? null : add
        focus: true
        implicitHeight: root.inColumn + (Metrics.bannerHeight - root.inColumn) * spread.value

        BlockPicture {
            id: picture

            anchors.horizontalCenter: parent.horizontalCenter
            blockID: root.blockID
            height: parent.height
            imageData: root.imageData
            images: root.page.images
            opacity: ready ? 1 : 0
            radius: Metrics.pictureRadius * Math.max(0, 1 - spread.value)
            width: root.isBanner || aspectRatio <= Metrics.highestPicture ? parent.width : Math.max(1, height / aspectRatio)

            Behavior on opacity {
                NumberAnimation { duration: Motion.fade }
            }
        }

        BannerOverlay {
            anchors.fill: parent
            opacity: Math.min(1, spread.value)
            visible: spread.value > 0
        }

        BannerTitleField {
            id: title

            address: root.address
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Metrics.bannerPadding }
            content: root.bannerTitle
            focus: root.isBanner
            opacity: Math.min(1, spread.value)
            page: root.page
            visible: root.isBanner
            onFinished: root.page.walkedOut(root.index, true)
        }

        AddImageButton {
            id: add

            focus: !root.hasImage
            visible: !root.hasImage
            width: parent.width
            onTriggered: root.page.editor.imageImport.addImage(root.blockID)
        }

        FocusRing {
            controlRadius: Metrics.pictureRadius
            shown: editor.activeFocus && editor.walkedTo && root.hasImage && !root.isBanner
        }
    }
}
