import QtQuick
import Pelko

/// The alerts of an export. Each is shown while its condition is true.
Item {
    id: root

    required property ExportViewModel exports
    property Item backdrop: null
    /// Whether another alert is above these.
    property bool covered: false

    AlertDialog {
        open: root.exports.showProgress
        unasked: true
        covered: root.covered
        backdrop: root.backdrop
        symbol: "square.and.arrow.up"
        symbolColor: FirePalette.amberSoft
        title: qsTr("Exporting…")
        message: root.exports.progressText
        actions: DialogAction { name: qsTr("Stop"); cancels: true; onTriggered: root.exports.stop() }
    }

    AlertDialog {
        open: root.exports.asksToReplace
        backdrop: root.backdrop
        symbol: "doc.on.doc"
        title: root.exports.questionTitle
        message: root.exports.questionText
        actions: [
            DialogAction { name: qsTr("Nah"); cancels: true },
            DialogAction { name: qsTr("Replace"); destroys: true; onTriggered: root.exports.replace() }
        ]
        onDismissed: root.exports.keep()
    }

    AlertDialog {
        open: root.exports.showResult
        unasked: true
        covered: root.covered
        backdrop: root.backdrop
        symbol: root.exports.hasFailed ? "exclamationmark.triangle" : "square.and.arrow.up"
        symbolColor: root.exports.hasFailed ? FirePalette.destructive : FirePalette.amberSoft
        title: root.exports.resultTitle
        message: root.exports.resultText
        actions: DialogAction { name: qsTr("Got it"); cancels: true }
        onDismissed: root.exports.dismissResult()
    }
}
