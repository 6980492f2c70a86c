pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The place of the tasks panel at the right edge of the window. The panel comes in from that edge with a fade and
/// goes there twice as fast; meanwhile `room` tells how much of the width it takes from what stands beside it.
FocusScope {
    id: place

    required property TasksViewModel tasks

    /// Nothing but the page is to be seen; the panel waits out of sight.
    property bool quiet: false
    readonly property bool open: (tasks?.isOpen ?? false) && !quiet
    readonly property real part: Math.max(0, Math.min(1, entrance.value))
    // Whoever asked for little motion sees a fade: the panel is where it belongs from the first.
    readonly property real room: width * (Motion.reduced ? entrance.goal : part)

    /// The keyboard belongs to what stands beside the panel again.
    signal released

    Keys.onEscapePressed: released()
    // What made it quiet has a say first in where the keyboard goes.
    onOpenChanged: if (!open && !quiet) released()
    onPartChanged: if (part === 0) released()
    onVisibleChanged: if (!visible) released()
    width: Metrics.panelWidth

    SpringFollower {
        id: entrance

        dampingFraction: Motion.reduced ? 1 : 0.82
        goal: place.open ? 1 : 0
        response: Motion.reduced ? 0.08 : place.open ? 0.35 : 0.175
        onValueChanged: if (value <= 0) place.tasks?.panelLeft()
    }

    Repeater {
        model: place.tasks?.panel ? [place.tasks.panel] : []

        TasksPanelView {
            required property TasksPanelViewModel modelData

            enabled: place.open
            height: place.height
            opacity: place.part
            panel: modelData
            visible: place.open || opacity > 0
            width: place.width
            x: Motion.reduced ? 0 : place.width - place.room
        }
    }
}
