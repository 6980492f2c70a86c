import QtQuick
import Pelko

/// The title over the lower part of a banner.
WritingField {
    id: root

    Accessible.description: placeholder
    Accessible.multiLine: false
    Accessible.name: qsTr("Banner title")
    color: FirePalette.inkHeading
    font: Typography.bannerTitle
    isSingleLine: true
    lineHeight: Typography.bannerTitleLine
    placeholder: qsTr("Untitled")
}
