pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// Shows the controls on their usual backgrounds. `scene` opens one of the dialogs or the menu.
Window {
    id: window

    property string scene: ""

    width: 1100
    height: 750
    visible: true
    color: FirePalette.deepBackground

    Item {
        id: page

        anchors.fill: parent

        Rectangle {
            x: 40; y: 90; width: 640; height: 260
            color: FirePalette.editorSurface
            radius: Metrics.cardRadius
            border.color: FirePalette.hairline

            Text {
                x: 24; y: 24; width: 592
                wrapMode: Text.Wrap
                font: Typography.heading
                color: FirePalette.inkHeading
                text: "The first hour decides the day"
            }
            Text {
                x: 24; y: 80; width: 592
                wrapMode: Text.Wrap
                lineHeight: Typography.bodyLine
                lineHeightMode: Text.FixedHeight
                font: Typography.body
                color: FirePalette.inkBody
                text: "Nothing opens before the page does. One page carries one thought, and a tired hand may rest."
            }
            Text {
                x: 24; y: 150; width: 592
                font: Typography.quote
                color: FirePalette.inkQuote
                text: "Begin before the kettle boils."
            }
            Text {
                x: 24; y: 200
                font: Typography.code
                color: FirePalette.inkCode
                text: "page.write(next_honest_sentence())"
            }
        }
        Rectangle {
            x: 720; y: 90; width: 340; height: 260
            radius: Metrics.pictureRadius
            gradient: Gradient {
                GradientStop { position: 0; color: "#77787a" }
                GradientStop { position: 0.35; color: "#e9b48c" }
                GradientStop { position: 0.7; color: "#55606b" }
                GradientStop { position: 1; color: "#1d2228" }
            }
            Repeater {
                model: 8
                Rectangle {
                    required property int index
                    x: index * 44; width: 14; height: parent.height
                    color: Qt.rgba(1, 1, 1, 0.25)
                }
            }
        }
    }

    Row {
        x: 40; y: 24; spacing: Metrics.space6
        Repeater {
            model: [["textformat.size.larger", "Heading"], ["text.alignleft", "Text"], ["text.quote", "Quote"],
                    ["chevron.left.forwardslash.chevron.right", "Code"], ["minus", "Divider"], ["photo", "Image"],
                    ["checklist", "Checklist"]]
            IconChipButton {
                required property var modelData
                icon.name: modelData[0]
                tip: modelData[1]
            }
        }
        IconChipButton { icon.name: "trash"; tip: "Disabled"; enabled: false }
    }

    Row {
        x: 960; y: 24; spacing: Metrics.captionSpacing
        CaptionButton { icon.name: "line.3.horizontal"; name: "Menu" }
        CaptionButton { icon.name: "window.minimise"; name: "Minimise" }
        CaptionButton { icon.name: "window.maximise"; name: "Maximise" }
        CaptionButton { icon.name: "window.close"; name: "Close"; closes: true }
    }

    BubblyDeleteButton { x: 640; y: 78; backdrop: page }
    BubblyDeleteButton { x: 1020; y: 98; backdrop: page }
    BannerToggleButton { x: 986; y: 98; isBanner: false; backdrop: page }
    GlassSurface { x: 740; y: 100; width: 120; height: 28; kind: Glass.capsule; backdrop: page }
    GlassSurface { x: 740; y: 150; width: 120; height: 80; radius: 16; kind: Glass.card; backdrop: page }
    GlassSurface { x: 880; y: 150; width: 160; height: 120; radius: 14; kind: Glass.menu; backdrop: page }
    GlassSurface { x: 740; y: 250; width: 120; height: 60; radius: 14; kind: Glass.overlay; backdrop: page }
    WarmButton { x: 880; y: 290; name: "Flow"; icon.name: "flame.fill"; backdrop: page }

    Row {
        x: 60; y: 400; spacing: Metrics.space32
        AnimatedFlame { size: 48 }
        AnimatedFlame { size: 80 }
        AnimatedFlame { size: 14 }
        WarmButton { name: "Start Writing"; icon.name: "flame"; casts: true }
        GlassButton { name: "Nah"; width: 160 }
        GlassButton { name: "Delete"; width: 160; kind: Glass.destructive }
        WarmButton { name: "Fine"; width: 160 }
    }

    Grid {
        x: 60; y: 520; columns: 16; spacing: 18
        Repeater {
            model: ["textformat.size.larger", "text.alignleft", "text.quote", "chevron.left.forwardslash.chevron.right",
                    "minus", "photo", "checklist", "trash", "flame", "flame.fill", "checkmark", "checkmark.circle.fill",
                    "circle", "xmark", "plus", "arrow.up.left.and.arrow.down.right",
                    "arrow.down.right.and.arrow.up.left", "sidebar.right", "chevron.right", "rectangle.expand.vertical",
                    "rectangle.compress.vertical", "exclamationmark.triangle", "info.circle", "line.3.horizontal",
                    "power", "keyboard", "window.minimise", "window.maximise", "window.restore", "window.close", "grip",
                    "arrow.up", "arrow.down", "doc.on.doc", "lightbulb", "briefcase", "book.closed"]
            SymbolIcon {
                required property string modelData
                name: modelData
                size: 28
                color: FirePalette.inkBody
            }
        }
    }

    AlertDialog {
        open: window.scene === "limit"
        backdrop: page
        title: "Five is the limit."
        message: "You've got 5 docs in this space. Archive one first. Constraints breed creativity."
        art: FiveEmbers {}
        actions: DialogAction { name: "Fine"; cancels: true }
        onDismissed: window.scene = ""
    }
    AlertDialog {
        open: window.scene === "about"
        backdrop: page
        title: "Pelko"
        message: "Built by Dravel. Fueled by espresso and poor decisions."
        art: AnimatedFlame { size: 40 }
        actions: DialogAction { name: "Close"; cancels: true }
        onDismissed: window.scene = ""
    }
    AlertDialog {
        open: window.scene === "error"
        backdrop: page
        title: "That didn't work. Give it a second and try again before we both panic."
        message: "Save failed: No space left on device"
        symbol: "exclamationmark.triangle"
        actions: DialogAction { name: "Got it"; cancels: true }
        onDismissed: window.scene = ""
    }
    AlertDialog {
        open: window.scene === "delete"
        backdrop: page
        title: "Delete “Letter to the printer” for good?"
        symbol: "trash"
        actions: [
            DialogAction { name: "Nah"; cancels: true },
            DialogAction { name: "Delete"; destroys: true }
        ]
        onDismissed: window.scene = ""
    }
    PopupMenu {
        id: menu

        name: "Pelko"
        backdrop: page
        minimumWidth: 240
        Component.onCompleted: if (window.scene === "menu") popUp(60, 100)

        PopupMenuRow { menu: menu; icon.name: "plus"; name: "New Document"; keys: "Ctrl+N" }
        PopupMenuSeparator {}
        PopupMenuRow { menu: menu; icon.name: "lightbulb"; name: "Ideas"; keys: "Ctrl+1" }
        PopupMenuRow { menu: menu; icon.name: "briefcase"; name: "Work"; keys: "Ctrl+2"; ticked: true }
        PopupMenuRow { menu: menu; icon.name: "book.closed"; name: "Journal"; enabled: false }
        PopupMenuSeparator {}
        PopupMenuRow { menu: menu; icon.name: "info.circle"; name: "About Pelko" }
        PopupMenuRow { menu: menu; icon.name: "trash"; name: "Delete Block"; destroys: true }
        PopupMenuRow { menu: menu; icon.name: "power"; name: "Quit"; keys: "Ctrl+Q" }
    }
}
