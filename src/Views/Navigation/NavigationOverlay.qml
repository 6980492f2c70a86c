import QtQuick
import Pelko

/// The navigation overlay on a sheet of glass: the greeting, the search field, the spaces, and the pages of one space
/// or of a search. A click beside the sheet or Escape closes it.
ModalLayer {
    id: overlay

    required property MainViewModel main
    property Item backdrop: null
    /// The width of the page, from the leading edge; the overlay is centred over it if there is room.
    property real pageWidth: width
    readonly property real room: pageWidth < Metrics.overlayWidth + 2 * Metrics.space24 ? width : pageWidth
    readonly property real pageLeft: LayoutMirroring.enabled ? width - room : 0
    readonly property NavigationViewModel navigation: main.navigation
    readonly property real highest: height - card.y - Metrics.space24

    function requestDelete(pageID: string) {
        main.requestDelete(pageID)
    }

    Accessible.name: qsTr("Go to")
    Accessible.role: Accessible.Dialog
    Keys.onDeletePressed: requestDelete(navigation.chosenPage())
    Keys.onDownPressed: navigation.moveChoice(1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_PageDown) navigation.moveChoice(content.pageStep)
        if (event.key === Qt.Key_PageUp) navigation.moveChoice(-content.pageStep)
    }
    Keys.onUpPressed: navigation.moveChoice(-1)
    motion: PelkoAnimation.smooth
    open: main.appState.showNav
    passesShortcuts: true
    scrim: FirePalette.dismissLayer
    onClickedBeside: main.dismissNav()
    onEscaped: main.dismissNav()
    onOpened: field.input.forceActiveFocus(Qt.PopupFocusReason)

    // Tab wraps around at both ends.
    Item {
        activeFocusOnTab: true
        onActiveFocusChanged: {
            if (activeFocus)
                end.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
    }

    GlassSurface {
        id: card

        backdrop: overlay.backdrop
        height: content.height
        kind: Glass.overlay
        opacity: Math.max(0, Math.min(1, overlay.shown))
        radius: Metrics.overlayRadius
        scale: Motion.reduced ? 1 : 0.98 + 0.02 * overlay.shown
        transformOrigin: Item.Top
        width: Math.min(Metrics.overlayWidth, overlay.width - 2 * Metrics.space24)
        x: overlay.pageLeft + Math.round((overlay.room - width) / 2)
        y: Metrics.overlayTop

        Behavior on height {
            enabled: overlay.shown === 1 && !Motion.reduced
            NumberAnimation { duration: PelkoAnimation.micro.duration; easing: PelkoAnimation.micro.curve }
        }

        MouseArea { anchors.fill: parent }

        Item {
            id: content

            readonly property int pageStep: Math.max(1, Math.floor(list.height / list.rowHeight) - 1)

            clip: card.height !== height
            height: foot.y + foot.height
            width: parent.width

            Text {
                id: greeting

                Accessible.name: text
                Accessible.role: Accessible.StaticText
                color: FirePalette.amberSoft
                elide: Text.ElideRight
                font: Typography.button
                renderType: Text.NativeRendering
                text: overlay.main.topMessage
                textFormat: Text.PlainText
                width: parent.width - 2 * x
                x: Metrics.overlayPadding + Metrics.space6
                y: Metrics.space20
            }

            SearchField {
                id: field

                navigation: overlay.navigation
                width: parent.width - 2 * x
                x: Metrics.overlayPadding
                y: 50
                onDeleteRequested: overlay.requestDelete(overlay.navigation.chosenPage())
            }

            SpaceTabs {
                id: spaces

                navigation: overlay.navigation
                visible: !overlay.navigation.isSearching
                width: field.width
                x: Metrics.overlayPadding
                y: field.y + field.height + Metrics.space12
            }

            Text {
                id: summary

                Accessible.name: text
                Accessible.role: Accessible.StaticText
                color: FirePalette.inkMeta
                font: Typography.meta
                renderType: Text.NativeRendering
                text: overlay.navigation.summary
                textFormat: Text.PlainText
                visible: overlay.navigation.isSearching
                anchors { left: parent.left; leftMargin: Metrics.overlayPadding + Metrics.space12 }
                y: field.y + field.height + Metrics.space12
            }

            PageList {
                id: list

                readonly property Item above: overlay.navigation.isSearching ? summary : spaces

                navigation: overlay.navigation
                room: overlay.highest - y - Metrics.space8 - newPage.height - Metrics.space8 - foot.height
                width: field.width
                x: Metrics.overlayPadding
                y: above.y + above.height + Metrics.space8
                onDeleteRequested: pageID => overlay.requestDelete(pageID)
            }

            NewPageRow {
                id: newPage

                chosen: visible && overlay.navigation.chosenRow === overlay.navigation.pageCount
                height: visible ? implicitHeight : 0
                placesLeft: overlay.navigation.placesLeft
                visible: !overlay.navigation.isSearching
                width: field.width
                x: Metrics.overlayPadding
                y: list.y + list.height + (list.cut ? Metrics.space8 : 0)
                onTriggered: overlay.main.createDocument()
            }

            NavigationFooter {
                id: foot

                width: field.width
                x: Metrics.overlayPadding
                y: newPage.y + newPage.height + Metrics.space8
            }
        }
    }

    Item {
        id: end

        activeFocusOnTab: true
        onActiveFocusChanged: if (activeFocus) field.input.forceActiveFocus(Qt.TabFocusReason)
    }
}
