import QtQuick
import Pelko

/// A status icon at the end of a row.
SymbolIcon {
    required property string symbol

    Accessible.ignored: true
    anchors.verticalCenter: parent?.verticalCenter
    color: FirePalette.inkMeta
    name: symbol
    size: Metrics.navigationGlyph
}
