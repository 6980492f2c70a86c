import QtQuick
import Pelko

/// The capture field for sparks with its caption and its button.
FocusScope {
    id: root

    required property PomodoroViewModel panel

    implicitHeight: column.height

    Connections {
        target: root.panel
        function onCaptureFocusRequested() { field.forceActiveFocus(Qt.OtherFocusReason) }
        function onStartedFresh() {
            field.forgetTyping()
            field.forceActiveFocus(Qt.OtherFocusReason)
        }
    }

    Column {
        id: column

        width: parent.width
        spacing: Metrics.space10 + 1

        Row {
            anchors.left: parent.left
            height: 11
            spacing: Metrics.space6 + 1

            SymbolIcon {
                anchors.verticalCenter: parent.verticalCenter
                name: "sparkles"
                size: 9
                color: Qt.alpha(FirePalette.amber, 0.7)
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("CAPTURE A SPARK")
                textFormat: Text.PlainText
                font: Typography.captureCaption
                color: FirePalette.white(0.45)
                Accessible.ignored: true
            }
        }

        FieldBackground {
            width: parent.width
            height: Metrics.captureHeight
            active: field.activeFocus

            LineField {
                id: field

                anchors { left: parent.left; leftMargin: 13; right: send.left; rightMargin: Metrics.space8 }
                anchors.verticalCenter: parent.verticalCenter
                focus: true
                name: qsTr("Capture a spark")
                placeholder: qsTr("What's the thought?")
                content: root.panel.quickNote
                onEdited: text => root.panel.typed(text)
                onAccepted: root.panel.submitSpark()
            }

            SendButton {
                id: send

                anchors { right: parent.right; rightMargin: Metrics.space8; verticalCenter: parent.verticalCenter }
                enabled: root.panel.canSubmit
                onTriggered: root.panel.submitSpark()
            }
        }

        FullFieldNote {
            field: field
            width: parent.width
        }

        Text {
            Accessible.name: text
            Accessible.role: Accessible.AlertMessage
            color: FirePalette.destructive
            font: Typography.sparkText
            text: root.panel.captureError
            textFormat: Text.PlainText
            visible: text !== ""
            width: parent.width
            wrapMode: Text.Wrap
        }
    }
}
