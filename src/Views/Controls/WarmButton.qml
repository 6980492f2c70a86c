import Pelko

/// The one strong button of a view, lit from within.
GlassButton {
    kind: Glass.warm
}
