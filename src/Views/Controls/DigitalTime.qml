pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// A time, or a number, whose digits stand in cells of one width each, so that nothing shifts while it counts. Where it `rolls`,
/// a digit that changes rolls upwards to the next. Whoever uses it sets the accessible role and name.
Row {
    id: time

    required property string text
    required property font font
    required property color color
    property color footColor: color
    property bool rolls: false
    /// By how much the colon's cell is narrower than a digit's, and how far it is lifted.
    property real colonInset: digitWidth - Math.ceil(metrics.advanceWidth(":"))
    property real colonRise: 0

    readonly property real digitWidth: Math.ceil(Array.from("0123456789").reduce(
        (widest, digit) => Math.max(widest, metrics.advanceWidth(digit)), 0))

    baselineOffset: metrics.ascent
    // Figures run from left to right everywhere.
    layoutDirection: LayoutMirroring.enabled ? Qt.RightToLeft : Qt.LeftToRight

    FontMetrics {
        id: metrics

        font: time.font
    }

    Repeater {
        model: time.text.length

        RollingDigit {
            required property int index

            readonly property bool isColon: value === ":"

            value: time.text.charAt(index)
            font: time.font
            color: time.color
            footColor: time.footColor
            rolls: time.rolls
            width: time.digitWidth - (isColon ? time.colonInset : 0)
            height: Math.ceil(metrics.height)
            rise: isColon ? time.colonRise : 0
        }
    }
}
