import QtQuick
import Pelko

/// A mark at the end of a row that says something about its page and does nothing.
SymbolIcon {
    required property string symbol

    Accessible.ignored: true
    anchors.verticalCenter: parent?.verticalCenter
    color: FirePalette.inkMeta
    name: symbol
    size: Metrics.navigationGlyph
}
