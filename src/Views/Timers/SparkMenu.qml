import QtQuick
import Pelko

/// The context menu of a spark.
PopupMenu {
    id: menu

    required property PomodoroViewModel panel
    property string sparkID: ""

    function openFor(id: string, text: string, place: point) {
        sparkID = id
        name = text
        popUp(place.x, place.y)
    }

    Connections {
        target: menu.panel
        function onStartedFresh() { menu.close() }
    }

    name: ""
    minimumWidth: 138

    PopupMenuRow {
        menu: menu
        name: qsTr("Copy")
        icon.name: "doc.on.doc"
        onTriggered: menu.panel.copySpark(menu.sparkID)
    }

    PopupMenuRow {
        menu: menu
        name: qsTr("Delete")
        icon.name: "trash"
        destroys: true
        onTriggered: menu.panel.deleteSpark(menu.sparkID)
    }
}
