import QtQml

/// One choice of a dialog. Escape triggers the one that cancels. The only choice of a dialog is emphasised.
QtObject {
    required property string name
    property bool cancels: false
    property bool destroys: false

    signal triggered()
}
