import Pelko

/// Makes the picture under the pointer the banner of its page, and back.
HoverCapsule {
    required property bool isBanner

    name: isBanner ? qsTr("Unbanner") : qsTr("Banner")
    icon.name: isBanner ? "rectangle.compress.vertical" : "rectangle.expand.vertical"
}
