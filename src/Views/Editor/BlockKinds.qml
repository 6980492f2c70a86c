pragma Singleton

import QtQml

/// The name, the symbol and the spacing of each kind of block.
QtObject {
    id: kinds

    readonly property BlockKind heading: BlockKind {
        name: "textLarge"
        icon: "textformat.size.larger"
        tip: qsTr("Heading")
        placeholder: qsTr("Start writing...")
        before: 32
        after: 12
    }
    readonly property BlockKind body: BlockKind {
        name: "textSmall"
        icon: "text.alignleft"
        tip: qsTr("Body")
        placeholder: qsTr("Write it down")
    }
    readonly property BlockKind quote: BlockKind {
        name: "quote"
        icon: "text.quote"
        tip: qsTr("Quote")
        placeholder: qsTr("Quote")
        before: 20
        after: 20
    }
    readonly property BlockKind code: BlockKind {
        name: "code"
        icon: "chevron.left.forwardslash.chevron.right"
        tip: qsTr("Code")
        placeholder: qsTr("Code")
        before: 20
        after: 20
    }
    readonly property BlockKind divider: BlockKind {
        name: "divider"
        icon: "minus"
        tip: qsTr("Divider")
        before: 24
        after: 24
    }
    readonly property BlockKind image: BlockKind {
        name: "image"
        icon: "photo"
        tip: qsTr("Image")
        before: 20
        after: 20
    }
    readonly property BlockKind checklist: BlockKind {
        name: "sticky"
        icon: "checklist"
        tip: qsTr("Checklist")
        before: 24
        after: 24
    }

    /// A picture that is shown across the top of the page.
    readonly property BlockKind banner: BlockKind {
        name: "banner"
        icon: "photo"
        tip: qsTr("Banner")
        after: 30
    }

    /// In the order of the block bar.
    readonly property list<BlockKind> all: [heading, body, quote, code, divider, image, checklist]

    function named(name: string) : BlockKind {
        if (name === banner.name)
            return banner
        for (let i = 0; i < all.length; ++i)
            if (all[i].name === name)
                return all[i]
        return body
    }

    /// Returns the space between a block and the one above it.
    function gap(above: string, name: string) : int {
        return above === "" ? 0 : Math.max(named(above).after, named(name).before)
    }
}
