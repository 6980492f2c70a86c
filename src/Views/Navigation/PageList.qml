pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The pages of a space or of a search. It shows the selected row and never has the focus. If not all rows fit, it ends
/// in the middle of a row, to show that more follow.
Item {
    id: root

    required property NavigationViewModel navigation
    required property real room
    readonly property int rowHeight: navigation.isSearching ? Metrics.hitRowHeight : Metrics.pageRowHeight
    readonly property int rowCount: Math.max(navigation.pageCount, note.visible ? 1 : 0)
    readonly property bool cut: rowCount * rowHeight > room
    readonly property real fittingRows: Math.floor(room / rowHeight - 0.5) + 0.5

    signal deleteRequested(string pageID)

    implicitHeight: (cut ? fittingRows : rowCount) * rowHeight

    Text {
        id: note

        Accessible.name: text
        Accessible.role: Accessible.StaticText
        anchors { left: parent.left; leftMargin: Metrics.pageRowIndent; verticalCenter: parent.verticalCenter }
        color: FirePalette.inkMeta
        font: Typography.listTitle
        renderType: Text.NativeRendering
        text: root.navigation.summary
        textFormat: Text.PlainText
        visible: text !== "" && !root.navigation.isSearching
    }

    ListView {
        id: list

        Accessible.name: qsTr("Pages")
        Accessible.role: Accessible.List
        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        // With a cache, rows are cancelled too late when the model shrinks, and Qt warns.
        cacheBuffer: 0
        clip: true
        keyNavigationEnabled: false
        model: root.navigation.pages

        delegate: PageListRow {
            chosen: index === root.navigation.chosenRow
            width: ListView.view?.width ?? 0
            onDeleteRequested: root.deleteRequested(pageID)
            onOpened: root.navigation.open(pageID)
        }
    }

    // Sets the order for assistive technology after all rows have their places.
    Timer {
        id: readingOrder

        interval: 0
        onTriggered: ReadingOrder.arrange(list.contentItem)
    }

    Connections {
        function onChildrenChanged() {
            readingOrder.start()
        }

        target: list.contentItem
    }

    PelkoScrollBar {
        anchors { bottom: parent.bottom; right: parent.right; rightMargin: -Metrics.space12; top: parent.top }
        flickable: list
    }

    Connections {
        function onChosenRowChanged() {
            list.positionViewAtIndex(Math.min(root.navigation.chosenRow, list.count - 1), ListView.Contain)
        }

        target: root.navigation
    }
}
