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

    function test_fontsKeepTheirFractionsOfAPixel() {
        fuzzyCompare(Typography.body.pointSize * Typography.pixelsPerPoint(), 16.5, 0.01)
        compare(Typography.heading.weight, Font.Bold)
    }

    function test_aQuoteIsSetInTheItalicOfTheText() {
        compare(Typography.quote.family, Typography.body.family)
        verify(Typography.quote.italic)
    }
}
