import QtQuick
import QtTest
import Pelko

TestCase {
    name: "Theme"

    function test_requiredColours_data() {
        return [
            { tag: "amber", red: 0.88, green: 0.45, blue: 0.22 },
            { tag: "amberSoft", red: 0.94, green: 0.63, blue: 0.45 },
            { tag: "ember", red: 0.70, green: 0.25, blue: 0.14 },
            { tag: "deepBackground", red: 0.09, green: 0.08, blue: 0.07 },
            { tag: "editorSurface", red: 0.12, green: 0.11, blue: 0.10 },
            { tag: "flameTop", red: 0.95, green: 0.60, blue: 0.25 }
        ]
    }

    function test_requiredColours(row) {
        const colour = FirePalette[row.tag]
        fuzzyCompare(colour.r, row.red, 0.0001)
        fuzzyCompare(colour.g, row.green, 0.0001)
        fuzzyCompare(colour.b, row.blue, 0.0001)
        compare(colour.a, 1)
    }

    function test_springsReachQml() {
        verify(PelkoAnimation.micro.duration > 100)
        verify(PelkoAnimation.micro.duration < PelkoAnimation.settle.duration)
        compare(PelkoAnimation.spring(0.35, 0.82).duration, PelkoAnimation.smooth.duration)
    }

    NumberAnimation {
        id: animation
        target: mover
        property: "x"
        to: 100
        duration: PelkoAnimation.bouncy.duration
        easing: PelkoAnimation.bouncy.curve
    }

    Item {
        id: mover
        property real furthest: 0
        onXChanged: furthest = Math.max(furthest, x)
    }

    function test_animationFollowsTheSpringPastItsGoalAndBack() {
        animation.start()
        tryCompare(animation, "running", false)
        compare(mover.x, 100)
        verify(mover.furthest > 103)
    }

    function test_typesOfWriting_data() {
        return [
            { tag: "bannerTitle", family: Typography.displayFamily, pixels: 38, weight: Font.Bold, tracking: -0.7 },
            { tag: "heading", family: Typography.displayFamily, pixels: 34, weight: Font.Bold, tracking: -0.5 },
            { tag: "body", family: Typography.textFamily, pixels: 16.5, weight: Font.Normal, tracking: 0 },
            { tag: "quote", family: Typography.textFamily, pixels: 18, weight: Font.Normal, tracking: 0 },
            { tag: "code", family: Typography.monoFamily, pixels: 13.5, weight: Font.Normal, tracking: 0 },
            { tag: "checklist", family: Typography.textFamily, pixels: 15, weight: Font.Normal, tracking: 0 }
        ]
    }

    function test_typesOfWriting(row) {
        const type = Typography[row.tag]
        compare(type.family, row.family)
        fuzzyCompare(type.pointSize * Typography.pixelsPerPoint(), row.pixels, 0.01)
        compare(type.weight, row.weight)
        fuzzyCompare(type.letterSpacing, row.tracking, 0.02) // in 64ths of a pixel
        compare(type.italic, row.tag === "quote")
    }

    function test_fontsKeepTheirFractionsOfAPixel() {
        fuzzyCompare(Typography.body.pointSize * Typography.pixelsPerPoint(), 16.5, 0.01)
        compare(Typography.heading.weight, Font.Bold)
    }

    function test_aQuoteIsSetInTheItalicOfTheText() {
        compare(Typography.quote.family, Typography.body.family)
        verify(Typography.quote.italic)
    }
}
