import QtQuick
import Pelko

/// Shows the rest of a long text slice by slice, for one text of the page at a time.
Timer {
    id: root

    required property BlockText text
    required property PageContext page

    readonly property bool grows: text.isGrowing

    interval: 1
    repeat: true
    running: grows && (!page || page.growingText === null || page.growingText === text)
    onGrowsChanged: if (!grows && page && page.growingText === text) page.growingText = null
    onTriggered: {
        if (page)
            page.growingText = text
        text.showMore()
    }
}
