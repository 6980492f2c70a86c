import QtQuick
import Pelko

/// Animates the insertion and removal of a list row: `presence` is its part from 0 to 1. At the edges of the list a row
/// fades with its visible part.
QtObject {
    id: entry

    required property Item row
    property real presence: 1

    readonly property Flickable list: row.ListView.view
    readonly property real above: list ? list.contentY + list.height - row.y : row.height
    readonly property real below: list ? row.y + row.height - list.contentY : row.height
    readonly property real opacity: part(presence) * part(Math.min(above, below) / Math.max(1, row.height))

    function part(share: real) : real {
        return Math.max(0, Math.min(1, share))
    }

    readonly property int duration: Motion.reduced ? 0 : PelkoAnimation.smooth.duration

    function come() {
        coming.start()
    }

    function go() {
        coming.stop()
        going.start()
    }

    readonly property Animation coming: NumberAnimation {
        duration: entry.duration
        easing: PelkoAnimation.smooth.curve
        from: 0
        property: "presence"
        target: entry
        to: 1
    }

    // The list keeps the row until the animation has ended.
    readonly property Animation going: SequentialAnimation {
        PropertyAction { property: "ListView.delayRemove"; target: entry.row; value: true }
        NumberAnimation {
            duration: entry.duration
            easing: PelkoAnimation.smooth.curve
            property: "presence"
            target: entry
            to: 0
        }
        PropertyAction { property: "ListView.delayRemove"; target: entry.row; value: false }
    }
}
