pragma ComponentBehavior: Bound

import QtQuick

/// Text with lines of equal height that can be struck through in another colour.
Text {
    id: root

    property bool struck: false
    property color strikeColor: color

    /// The width of the text in each line.
    property list<real> lineWidths: []

    lineHeightMode: Text.FixedHeight
    textFormat: Text.PlainText
    onLineLaidOut: line => lineWidths = lineWidths.slice(0, line.number).concat([line.implicitWidth])

    FontMetrics {
        id: metrics

        font: root.font
    }

    Repeater {
        model: root.struck ? root.lineWidths : []

        Rectangle {
            required property int index
            required property real modelData

            color: root.strikeColor
            height: Math.max(1, Math.round(metrics.lineWidth))
            width: Math.min(modelData, root.width)
            x: root.effectiveHorizontalAlignment === Text.AlignRight ? root.width - width : 0
            y: Math.round(root.baselineOffset - metrics.strikeOutPosition) + index * root.lineHeight
        }
    }
}
