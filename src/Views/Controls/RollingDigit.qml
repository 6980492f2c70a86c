pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Window
import Pelko

/// One digit of a time. A new value moves in from below while the old one fades out upwards.
Item {
    id: cell

    required property string value
    required property font font
    required property color color
    /// The colour at the bottom, if the digit has a gradient.
    property color footColor: color
    required property bool rolls
    property real rise: 0

    property string shownValue: value
    property string leavingValue: ""
    property real roll: 1

    readonly property real travel: height / 3

    function change() {
        leavingValue = shownValue
        shownValue = value
        if (rolls && !Motion.reduced && visible && Window.visibility !== Window.Hidden)
            rolling.restart()
    }

    onValueChanged: if (value !== shownValue) change()

    NumberAnimation {
        id: rolling

        target: cell
        property: "roll"
        from: 0
        to: 1
        duration: PelkoAnimation.smooth.duration
        easing: PelkoAnimation.smooth.curve
    }

    Digit {
        visible: cell.roll < 1
        opacity: Math.max(0, 1 - 2 * cell.roll)
        text: cell.leavingValue
        y: -cell.rise - cell.travel * cell.roll
    }

    Digit {
        opacity: Math.max(0, Math.min(1, cell.roll))
        text: cell.shownValue
        y: -cell.rise + cell.travel * (1 - cell.roll)
    }

    component Digit: Item {
        id: digit

        required property string text
        readonly property bool shaded: !Qt.colorEqual(cell.color, cell.footColor)

        width: cell.width
        height: cell.height

        Text {
            visible: !digit.shaded
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: digit.text
            textFormat: Text.PlainText
            font: cell.font
            color: cell.color
            Accessible.ignored: true
        }

        GradientText {
            anchors.fill: parent
            visible: digit.shaded
            text: digit.shaded ? digit.text : ""
            font: cell.font
            topColor: cell.color
            footColor: cell.footColor
        }
    }
}
