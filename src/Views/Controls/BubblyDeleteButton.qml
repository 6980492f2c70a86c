import Pelko

/// The round button that deletes a block. It becomes red under the pointer.
HoverCapsule {
    name: qsTr("Delete")
    icon.name: "trash"
    danger: 0.62
}
