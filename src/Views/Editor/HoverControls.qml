import QtQuick
import Pelko

/// The buttons over the upper right corner of a block under the pointer.
Row {
    id: root

    required property bool pointedAt
    /// The keyboard is in the block: out of sight, the buttons can still be walked to.
    required property bool reachable
    /// None of them is offered, to nobody.
    required property bool quiet
    required property bool offersBanner
    required property bool isBanner
    required property bool offersDelete
    /// What is seen through their glass.
    property Item backdrop: null

    readonly property Item last: quiet ? null : offersDelete ? remove : offersBanner ? toggle : null

    signal bannerToggled
    signal deleteRequested
    /// A button that has the keyboard is shown no longer.
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
