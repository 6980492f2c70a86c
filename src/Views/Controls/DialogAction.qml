import QtQml

/// One of the choices a dialog offers. Escape makes the one that cancels. A dialog of one choice offers it strongly.
QtObject {
    required property string name
    property bool cancels: false
    property bool destroys: false

    signal triggered()
}
