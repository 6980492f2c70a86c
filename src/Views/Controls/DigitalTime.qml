pragma ComponentBehavior: Bound

import QtQuick
import Pelko

/// A time or a number with digits of equal width, so that nothing moves while it counts. With `rolls`, a changed digit
/// rolls upwards. The user of this type sets the accessible role and name.
Row {
    id: time

    required property string text
    required property font font
    required property color color
    property color footColor: color
    property bool rolls: false
    /// How much narrower than a digit the colon is, and how far it is raised.
    property real colonInset: digitWidth - Math.ceil(metrics.advanceWidth(":"))
    property real colonRise: 0

    readonly property real digitWidth: Math.ceil(Array.from("0123456789").reduce(
        (widest, digit) => Math.max(widest, metrics.advanceWidth(digit)), 0))

    baselineOffset: metrics.ascent
    // Digits are ordered from left to right in all languages.
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
