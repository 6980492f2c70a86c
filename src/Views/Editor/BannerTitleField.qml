import QtQuick
import Pelko

/// The title over the lower part of a banner.
WritingField {
    id: root

    /// The writer is done with the title.
    signal finished

    Accessible.description: placeholder
    Accessible.multiLine: false
    Accessible.name: qsTr("Banner title")
    Keys.onEnterPressed: finished()
    Keys.onReturnPressed: finished()
    color: FirePalette.inkHeading
    font: Typography.bannerTitle
    lineHeight: Typography.bannerTitleLine
    placeholder: qsTr("Untitled")
}
