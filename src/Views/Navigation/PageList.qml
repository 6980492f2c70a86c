pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// The pages of a space or of a search. It follows the choice and never has the keyboard.
Item {
    id: root

    required property NavigationViewModel navigation

    signal deleteRequested(string pageID)

    ListView {
        id: list

        Accessible.name: qsTr("Pages")
        Accessible.role: Accessible.List
        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        keyNavigationEnabled: false
        model: root.navigation.pages

        delegate: PageListRow {
            chosen: index === root.navigation.chosenRow
            width: ListView.view?.width ?? 0
            onDeleteRequested: root.deleteRequested(pageID)
            onTriggered: root.navigation.open(pageID)
        }

        onCountChanged: Qt.callLater(ReadingOrder.arrange, contentItem)
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
