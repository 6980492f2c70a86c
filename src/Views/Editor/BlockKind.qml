import QtQml

/// One kind of block: its name in the file, what the writer calls it, and its air above and below.
QtObject {
    required property string name
    required property string icon
    required property string tip
    property string placeholder
    property int before: 10
    property int after: 10
}
