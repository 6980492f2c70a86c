import QtQuick
import Pelko

/// An editable path of the folder that is shown, and a button that goes one folder up.
FocusScope {
    id: root

    required property FolderChooser chooser

    signal finished

    function edit() {
        input.forceActiveFocus(Qt.ShortcutFocusReason)
        input.selectAll()
    }

    implicitHeight: 32

    CaptionButton {
        id: up

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        enabled: root.chooser.canGoUp
        icon.name: "arrow.up"
        name: qsTr("Up")
        onTriggered: root.chooser.goUp()
    }

    Rectangle {
        anchors { left: up.right; leftMargin: Metrics.space8; right: parent.right; top: parent.top; bottom: parent.bottom }
        border { width: 1; color: input.activeFocus ? Qt.alpha(FirePalette.amberSoft, 0.55) : FirePalette.white(0.07) }
        color: FirePalette.white(input.activeFocus ? 0.085 : 0.045)
        radius: Metrics.fieldRadius

        TextInput {
            id: input

            Accessible.name: qsTr("Path")
            Accessible.role: Accessible.EditableText
            Keys.onEnterPressed: accepted()
            Keys.onEscapePressed: root.finished()
            Keys.onReturnPressed: accepted()
            Keys.onShortcutOverride: event => event.accepted = true
            activeFocusOnTab: true
            anchors { fill: parent; leftMargin: Metrics.space12; rightMargin: Metrics.space12 }
            clip: true
            color: FirePalette.inkBody
            font: Typography.menuRow
            renderType: Text.NativeRendering
            selectByMouse: true
            selectedTextColor: color
            selectionColor: FirePalette.selection
            text: root.chooser.folder
            verticalAlignment: TextInput.AlignVCenter
            onAccepted: root.chooser.goTo(text)
            onActiveFocusChanged: if (!activeFocus) text = Qt.binding(() => root.chooser.folder)
        }
    }

    Connections {
        function onListed() {
            if (input.activeFocus)
                root.finished()
        }

        target: root.chooser
    }
}
