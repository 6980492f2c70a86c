import Pelko

/// Makes a picture the banner of its page, or turns it back.
HoverCapsule {
    required property bool isBanner

    name: isBanner ? qsTr("Unbanner") : qsTr("Banner")
    icon.name: isBanner ? "rectangle.compress.vertical" : "rectangle.expand.vertical"
}
