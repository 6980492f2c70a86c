import Pelko

/// The emphasised button of a view.
GlassButton {
    kind: Glass.warm
}
