import QtQuick
import QtQuick.Templates as T
import Pelko

/// The cross that removes a checklist entry.
T.AbstractButton {
    id: root

    signal triggered

    Accessible.name: qsTr("Remove")
    Accessible.role: Accessible.Button
    Accessible.onPressAction: clicked()
    focusPolicy: Qt.TabFocus
    implicitHeight: Metrics.todoToggleSize
    implicitWidth: Metrics.todoToggleSize
    onClicked: triggered()

    Behavior on opacity {
        NumberAnimation { duration: PelkoAnimation.micro.duration; easing: PelkoAnimation.micro.curve }
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    contentItem: Item {
        SymbolIcon {
            anchors.centerIn: parent
            color: root.hovered ? FirePalette.destructive : FirePalette.inkMeta
            name: "xmark"
            size: Metrics.removeTodoGlyph
        }
    }

    FocusRing {
        target: root
    }
}
