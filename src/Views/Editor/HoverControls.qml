import QtQuick
import Pelko

/// The buttons at the upper right corner of a block. They are visible while the pointer is over the block.
Row {
    id: root

    required property bool pointedAt
    /// Whether the focus is in the block: the hidden buttons can then be reached by keyboard.
    required property bool reachable
    /// Whether the buttons are disabled.
    required property bool quiet
    required property bool offersBanner
    required property bool isBanner
    required property bool offersDelete
    /// The item that is blurred behind their glass.
    property Item backdrop: null

    readonly property Item last: quiet ? null : offersDelete ? remove : offersBanner ? toggle : null

    signal bannerToggled
    signal deleteRequested
    /// A button that has the focus was hidden.
    signal focusDropped

    opacity: pointedAt || (last !== null && (toggle.activeFocus || remove.activeFocus)) ? 1 : 0
    spacing: Metrics.space8
    visible: opacity > 0 || (last !== null && reachable)

    Behavior on opacity {
        NumberAnimation { duration: PelkoAnimation.micro.duration; easing: PelkoAnimation.micro.curve }
    }

    BannerToggleButton {
        id: toggle

        backdrop: root.backdrop
        isBanner: root.isBanner
        visible: root.offersBanner
        onVisibleChanged: if (!visible && activeFocus) root.focusDropped()
        onTriggered: root.bannerToggled()
    }

    BubblyDeleteButton {
        id: remove

        backdrop: root.backdrop
        visible: root.offersDelete
        onVisibleChanged: if (!visible && activeFocus) root.focusDropped()
        onTriggered: root.deleteRequested()
    }
}
