import Pelko

/// An item without size that configures the window it is in.
WindowConfigView {
    width: 0
    height: 0
    background: FirePalette.deepBackground
}
