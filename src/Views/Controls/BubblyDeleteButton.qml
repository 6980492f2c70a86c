import Pelko

/// The round bin over a block under the pointer; it warms up when pointed at itself.
HoverCapsule {
    name: qsTr("Delete")
    icon.name: "trash"
    danger: 0.62
}
