import QtQuick
import Pelko

/// The alert for a failed load or save, and the question whether to quit without saving. They are above all other items
/// of the window.
Item {
    id: root

    required property MainViewModel main
    property Item backdrop: null

    AlertDialog {
        open: root.main.showError
        unasked: true
        covered: root.main.quitGuard.asks
        backdrop: root.backdrop
        symbol: "exclamationmark.triangle"
        title: root.main.errorTitle
        message: root.main.errorText
        actions: DialogAction { name: qsTr("Got it"); cancels: true }
        onDismissed: root.main.dismissError()
    }

    AlertDialog {
        open: root.main.quitGuard.asks
        backdrop: root.backdrop
        symbol: "exclamationmark.triangle"
        title: qsTr("Your last changes are not saved.")
        message: root.main.quitGuard.reason
        actions: [
            DialogAction { name: qsTr("Stay"); cancels: true },
            DialogAction { name: qsTr("Quit and lose them"); destroys: true; onTriggered: root.main.quitGuard.quitAnyway() }
        ]
        onDismissed: root.main.quitGuard.stay()
    }
}
