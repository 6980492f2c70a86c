import QtQuick
import Pelko

/// What went wrong with the documents, and the question whether the program may end without saving them. They lie
/// above everything else that the window may show.
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
