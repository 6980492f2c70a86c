import QtQuick
import Pelko

/// The alerts of the window except those of `UnsavedAlerts`. Each is shown while its condition is true.
Item {
    id: root

    required property MainViewModel main
    property Item backdrop: null
    /// Whether another alert is above these.
    property bool covered: false
    readonly property ImageImport imageImport: main.editor?.imageImport ?? null

    AlertDialog {
        open: root.main.appState.showDocLimitNudge
        backdrop: root.backdrop
        title: qsTr("Five is the limit.")
        message: qsTr("You've got 5 docs in this space. Archive one first. Constraints breed creativity.")
        art: FiveEmbers {}
        actions: DialogAction { name: qsTr("Fine"); cancels: true }
        onDismissed: root.main.dismissDocLimitNudge()
    }

    AlertDialog {
        open: root.main.appState.showAbout
        backdrop: root.backdrop
        title: "Pelko"
        message: qsTr("Built by Dravel. Fueled by espresso and poor decisions.")
        art: AnimatedFlame { size: 36 }
        actions: DialogAction { name: qsTr("Close"); cancels: true }
        onDismissed: root.main.dismissAbout()
    }

    AlertDialog {
        open: root.imageImport?.showImageImportError ?? false
        unasked: true
        covered: root.covered
        backdrop: root.backdrop
        symbol: "photo"
        title: qsTr("Couldn't import image.")
        message: root.imageImport?.imageImportError ?? ""
        actions: DialogAction { name: qsTr("OK"); cancels: true }
        onDismissed: root.imageImport.dismissImageImportError()
    }

    AlertDialog {
        open: root.main.showDeleteConfirmation
        backdrop: root.backdrop
        symbol: "trash"
        title: root.main.deleteConfirmText
        actions: [
            DialogAction { name: qsTr("Nah"); cancels: true },
            DialogAction { name: qsTr("Delete"); destroys: true; onTriggered: root.main.confirmDelete() }
        ]
        onDismissed: root.main.cancelDelete()
    }
}
