pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// Contains the tasks panel at the trailing edge of the window. The panel slides in from that edge with a fade and out
/// twice as fast; `room` is the width that it currently takes from the editor.
FocusScope {
    id: place

    required property TasksViewModel tasks

    /// Whether focus mode hides the panel.
    property bool quiet: false
    readonly property bool open: (tasks?.isOpen ?? false) && !quiet
    readonly property real part: Math.max(0, Math.min(1, entrance.value))
    // With reduced motion the panel does not slide, it only fades.
    readonly property real room: width * (Motion.reduced ? entrance.goal : part)
    readonly property real beyondEdge: Motion.reduced ? 0 : width - room

    /// The editor gets the focus back.
    signal released

    Keys.onEscapePressed: released()
    // Let the cause of focus mode set the focus first.
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
            x: place.LayoutMirroring.enabled ? -place.beyondEdge : place.beyondEdge
        }
    }
}
