import QtQuick
import Pelko

/// The search field. It keeps the focus while the arrow keys select a row, so that typing can go on.
FieldBackground {
    id: root

    required property NavigationViewModel navigation
    readonly property alias input: field

    signal deleteRequested

    active: field.activeFocus
    implicitHeight: Metrics.searchHeight

    SymbolIcon {
        id: glass

        anchors { left: parent.left; leftMargin: Metrics.space14; verticalCenter: parent.verticalCenter }
        color: FirePalette.inkMeta
        name: "magnifyingglass"
        size: Metrics.chipSymbol
    }

    LineField {
        id: field

        // The selected row is announced here, because this field has the focus.
        Accessible.description: root.navigation.chosenDescription
        Keys.onDeletePressed: event => {
            const nothingToDelete = cursorPosition === length && selectedText === "" && !event.isAutoRepeat
            nothingToDelete ? root.deleteRequested() : event.accepted = false
        }
        anchors { left: glass.right; leftMargin: Metrics.space12; right: hint.left; rightMargin: Metrics.space12 }
        anchors.verticalCenter: parent.verticalCenter
        color: FirePalette.inkBody
        content: root.navigation.query
        focus: true
        face: Typography.checklist
        name: qsTr("Find")
        placeholder: qsTr("Find a page, a word, a spark")
        onAccepted: root.navigation.openChosen()
        onEdited: text => root.navigation.search(text)
    }

    Text {
        id: hint

        Accessible.ignored: true
        anchors { right: parent.right; rightMargin: Metrics.space14; verticalCenter: parent.verticalCenter }
        color: FirePalette.inkMeta
        font: Typography.menuKey
        renderType: Text.NativeRendering
        text: qsTr("Esc")
    }
}
