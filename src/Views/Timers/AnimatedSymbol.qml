import QtQuick
import Pelko

/// A symbol whose changes are animated: the old one shrinks and fades while the new one grows in its place.
Item {
    id: root

    required property string name
    required property real size
    required property color color

    property string shownName: name
    property string leavingName: ""
    property real change: 1

    function swap() {
        leavingName = shownName
        shownName = name
        if (!Motion.reduced)
            swapping.restart()
    }

    implicitWidth: size
    implicitHeight: size
    onNameChanged: if (name !== shownName) swap()

    NumberAnimation {
        id: swapping

        target: root
        property: "change"
        from: 0
        to: 1
        duration: PelkoAnimation.smooth.duration
        easing: PelkoAnimation.smooth.curve
    }

    SymbolIcon {
        visible: root.change < 1
        name: root.leavingName
        size: root.size
        color: root.color
        opacity: Math.max(0, 1 - 2 * root.change)
        scale: 1 - 0.5 * root.change
    }

    SymbolIcon {
        name: root.shownName
        size: root.size
        color: root.color
        opacity: Math.max(0, Math.min(1, root.change))
        scale: 0.5 + 0.5 * root.change
    }
}
