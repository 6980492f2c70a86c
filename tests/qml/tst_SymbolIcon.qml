pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko

Item {
    id: stage

    width: 200
    height: 100

    Rectangle { anchors.fill: parent; color: "black" }

    SymbolIcon { id: icon; name: "minus"; size: 20; color: "#ff0000" }

    TestCase {
        name: "SymbolIcon"
        when: windowShown

        function test_drawsInItsColour() {
            icon.name = "flame.fill"
            icon.color = "#ff0000"
            compare(grabImage(stage).pixel(10, 15), "#ff0000")
            icon.color = "#00ff00"
            compare(grabImage(stage).pixel(10, 15), "#00ff00")
        }

        function test_unknownNameDrawsNothing() {
            icon.name = "nothing.like.this"
            compare(inkedPixels(), 0)
        }

        function test_isAsLargeAsItsSize() {
            icon.size = 34
            compare(icon.width, 34)
            compare(icon.height, 34)
            icon.size = 20
        }

        function test_everySymbolHasADrawing_data() {
            return ["textformat.size.larger", "text.alignleft", "text.quote",
                    "chevron.left.forwardslash.chevron.right", "minus", "photo", "checklist", "trash", "flame",
                    "flame.fill", "checkmark", "checkmark.circle.fill", "circle", "xmark", "plus",
                    "arrow.up.left.and.arrow.down.right", "arrow.down.right.and.arrow.up.left", "sidebar.right",
                    "chevron.right", "rectangle.expand.vertical", "rectangle.compress.vertical",
                    "exclamationmark.triangle", "info.circle", "line.3.horizontal", "power", "keyboard",
                    "window.minimise", "window.maximise", "window.restore", "window.close", "grip"
                   ].map(name => ({ tag: name }))
        }

        function test_everySymbolHasADrawing(row) {
            icon.name = row.tag
            verify(inkedPixels() > 8)
        }

        function inkedPixels() {
            icon.color = "#ffffff"
            const picture = grabImage(stage)
            let inked = 0
            for (let i = 0; i < 400; ++i)
                inked += picture.red(i % 20, i / 20) > 100 ? 1 : 0
            return inked
        }
    }
}
