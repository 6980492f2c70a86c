import QtQuick
import QtQuick.Templates as T
import Pelko

/// One spark. A spark that was just captured glows. A right click, or Return, the menu key or Shift+F10 with the focus,
/// requests its menu.
T.AbstractButton {
    id: card

    required property string sparkID
    required text
    required property bool isNew

    readonly property bool isEmpty: text === ""

    signal menuRequested(real x, real y)

    function requestMenuInside() {
        menuRequested(mirrored ? width - Metrics.space48 : Metrics.space48, height / 2)
    }

    implicitHeight: words.height + 2 * Metrics.space8
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Keys.onReturnPressed: requestMenuInside()
    Keys.onEnterPressed: requestMenuInside()
    Keys.onMenuPressed: requestMenuInside()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier
        if (event.accepted)
            requestMenuInside()
    }

    Accessible.role: Accessible.ButtonMenu
    Accessible.name: isEmpty ? qsTr("Empty spark") : text
    Accessible.onPressAction: card.requestMenuInside()

    background: Rectangle {
        radius: Metrics.washRadius
        color: card.isNew ? Qt.alpha(FirePalette.amber, 0.13) : FirePalette.white(card.hovered ? 0.06 : 0.035)
        border.color: card.isNew ? Qt.alpha(FirePalette.amberSoft, 0.16) : "transparent"

        Behavior on color { ColorAnimation { duration: Motion.fade } }
    }

    SymbolIcon {
        anchors { left: parent.left; leftMargin: Metrics.space12 }
        y: Metrics.space8 + (Typography.sparkLine - height) / 2
        name: "sparkles"
        size: 10
        color: Qt.alpha(FirePalette.amber, card.isNew ? 0.85 : 0.4)
    }

    Text {
        id: words

        anchors { left: parent.left; leftMargin: 31; right: parent.right; rightMargin: Metrics.space12 }
        y: Metrics.space8
        text: card.isEmpty ? "—" : card.text
        textFormat: Text.PlainText
        font: Typography.sparkText
        color: FirePalette.white(card.isEmpty ? 0.25 : 0.78)
        lineHeight: Typography.sparkLine
        lineHeightMode: Text.FixedHeight
        maximumLineCount: 2
        elide: Text.ElideRight
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => card.menuRequested(point.position.x, point.position.y)
    }

    ControlFocusRing {
        control: card
        controlRadius: Metrics.washRadius
    }
}
