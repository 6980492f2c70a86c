pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// A message over the dimmed window with one or two choices. Return triggers the focused choice, which at first is
/// never the destructive one; Escape triggers the one that cancels. Every choice, and Escape without a choice that
/// cancels, ends with `dismissed`: the owner then closes the dialog.
ModalLayer {
    id: dialog

    required property string title
    property string message: ""
    property string symbol: ""
    property color symbolColor: FirePalette.destructive
    property Item art: null
    property list<DialogAction> actions
    property Item backdrop: null

    readonly property var choices: Array.from(actions)
    readonly property DialogAction cancelAction: choices.find(action => action.cancels) ?? null
    readonly property bool dangerous: choices.some(action => action.destroys)
    readonly property alias card: card

    signal dismissed()

    function choose(action: DialogAction) : void {
        action.triggered()
        dismissed()
    }

    function cancel() : void {
        cancelAction?.triggered()
        dismissed()
    }

    function focusHarmless() : void {
        const harmless = Math.max(0, choices.findIndex(action => !action.destroys))
        buttons.itemAt(harmless).forceActiveFocus(dangerous ? Qt.TabFocusReason : Qt.PopupFocusReason)
    }

    function focusChoice(index: int) : void {
        buttons.itemAt((index + buttons.count) % buttons.count).forceActiveFocus(Qt.TabFocusReason)
    }

    scrim: FirePalette.scrim
    onOpened: focusHarmless()
    onEscaped: cancel()

    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: message

    GlassSurface {
        id: card

        readonly property real rise: Motion.reduced ? 0 : 8 * (1 - dialog.shown)

        x: Math.round((parent.width - width) / 2)
        y: Math.round((parent.height - height) / 2) + rise
        width: Math.min(parent.width - 2 * Metrics.space24, Math.max(340, 2 * content.x + row.neededWidth))
        height: content.y + content.height + 22
        kind: Glass.dialog
        backdrop: dialog.backdrop
        radius: Metrics.dialogRadius
        opacity: Math.max(0, Math.min(1, dialog.shown))

        MouseArea { anchors.fill: parent }

        Column {
            id: content

            readonly property bool hasArt: dialog.art !== null || dialog.symbol !== ""

            x: 22
            y: hasArt ? 24 : 26
            width: parent.width - 44

            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: dialog.art?.width ?? 0
                height: dialog.art?.height ?? 0
                visible: dialog.art !== null
                children: dialog.art ? [dialog.art] : []
            }

            SymbolIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: dialog.symbol !== ""
                name: dialog.symbol
                size: 24
                color: dialog.symbolColor
            }

            Item { width: 1; height: Metrics.space12; visible: content.hasArt }

            BalancedText {
                anchors.horizontalCenter: parent.horizontalCenter
                widest: content.width
                text: dialog.title
                font: Typography.dialogTitle
                lineHeight: Typography.dialogTitleLine
                color: FirePalette.inkHeading
                Accessible.ignored: true
            }

            Item { width: 1; height: 7; visible: messageText.visible }

            BalancedText {
                id: messageText

                anchors.horizontalCenter: parent.horizontalCenter
                visible: text !== ""
                widest: content.width
                text: dialog.message
                font: Typography.message
                lineHeight: Typography.messageLine
                color: FirePalette.inkMessage
                Accessible.ignored: true
            }

            Item { width: 1; height: Metrics.space20 }

            Row {
                id: row

                /// The width of the widest button, which all buttons have.
                readonly property real widest: Array.from(children).reduce(
                    (widest, button) => Math.max(widest, button.implicitWidth), 0)
                readonly property real neededWidth: buttons.count * (widest + spacing) - spacing

                spacing: Metrics.space10

                Repeater {
                    id: buttons

                    model: dialog.actions

                    GlassButton {
                        id: button

                        required property DialogAction modelData
                        required property int index

                        readonly property bool strong: buttons.count === 1

                        name: modelData.name
                        kind: modelData.destroys ? Glass.destructive : strong ? Glass.warm : Glass.plain
                        width: (content.width - (buttons.count - 1) * Metrics.space10) / buttons.count
                        onTriggered: dialog.choose(modelData)
                        Keys.onTabPressed: dialog.focusChoice(index + 1)
                        Keys.onBacktabPressed: dialog.focusChoice(index - 1)
                        Keys.onRightPressed: dialog.focusChoice(index + (mirrored ? -1 : 1))
                        Keys.onLeftPressed: dialog.focusChoice(index + (mirrored ? 1 : -1))
                    }
                }
            }
        }
    }
}
