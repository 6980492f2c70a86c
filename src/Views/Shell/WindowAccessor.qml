import Pelko

/// Invisible and without size: dresses the window that it lies in.
WindowConfigView {
    width: 0
    height: 0
    background: FirePalette.deepBackground
}
