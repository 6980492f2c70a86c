import QtQml

/// One kind of block: its name in the data file, its name for the user, and the space above and below it.
QtObject {
    required property string name
    required property string icon
    required property string tip
    property string placeholder
    property int before: 10
    property int after: 10
}
