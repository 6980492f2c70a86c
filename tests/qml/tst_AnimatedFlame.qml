pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko

Item {
    id: stage

    width: 300
    height: 200

    Component {
        id: flameComponent

        AnimatedFlame { size: 48 }
    }

    TestCase {
        name: "AnimatedFlame"
        when: windowShown

        function cleanup() {
            Motion.reduced = false
        }

        function test_startsNarrowLowAndWithTheSmallGlow() {
            const flame = createTemporaryObject(flameComponent, stage)
            compare(flame.widthScale, 0.97)
            compare(flame.heightScale, 0.95)
            compare(flame.glowOpacity, 0.25)
            compare(flame.glowRadius, 10)
        }

        function test_setsItsThreeStatesWhenShown() {
            const flame = createTemporaryObject(flameComponent, stage)
            verify(flame.flickerA)
            verify(flame.flickerB)
            verify(flame.glowBreathing)
        }

        function test_swingsBetweenItsEnds() {
            const flame = createTemporaryObject(flameComponent, stage)
            let widest = 0
            let tallest = 0
            flame.widthScaleChanged.connect(() => widest = Math.max(widest, flame.widthScale))
            flame.heightScaleChanged.connect(() => tallest = Math.max(tallest, flame.heightScale))
            tryVerify(() => widest > 1.029 && flame.widthScale < 1.0, 5000)
            tryVerify(() => tallest > 1.049, 5000)
            verify(widest <= 1.03)
            verify(tallest <= 1.05)
        }

        function test_theGlowGrowsToItsLargeEnd() {
            const flame = createTemporaryObject(flameComponent, stage)
            let brightest = 0
            let largest = 0
            flame.glowOpacityChanged.connect(() => brightest = Math.max(brightest, flame.glowOpacity))
            flame.glowRadiusChanged.connect(() => largest = Math.max(largest, flame.glowRadius))
            tryVerify(() => brightest > 0.59 && largest > 19.9, 6000)
            verify(brightest <= 0.6)
            verify(largest <= 20)
        }

        function test_itsThreeSwingsNeverKeepStep() {
            const flame = createTemporaryObject(flameComponent, stage)
            const swings = Array.from(flame.resources).filter(item => item.motion)
            const durations = swings.map(swing => Array.from(swing.motion.animations).map(animation => animation.duration))
            compare(durations, [[1200, 1200], [900, 900], [2000, 2000]])
        }

        function test_twoFlamesMoveIndependently() {
            const first = createTemporaryObject(flameComponent, stage)
            tryVerify(() => first.heightScale > 1.0, 5000)
            const second = createTemporaryObject(flameComponent, stage)
            tryVerify(() => second.heightScale > 0.955, 5000)
            verify(Math.abs(first.heightScale - second.heightScale) > 0.01)
        }

        function test_standsStillWhileUnseen() {
            const flame = createTemporaryObject(flameComponent, stage)
            tryVerify(() => flame.heightScale > 0.96, 5000)
            flame.visible = false
            const height = flame.heightScale
            const width = flame.widthScale
            wait(100)
            compare(flame.heightScale, height)
            compare(flame.widthScale, width)
            flame.visible = true
            tryVerify(() => flame.heightScale !== height, 5000)
        }

        function test_standsStillWithReducedMotion() {
            Motion.reduced = true
            const flame = createTemporaryObject(flameComponent, stage)
            verify(!flame.flickerA)
            wait(100)
            compare(flame.heightScale, 0.95)
            compare(flame.glowOpacity, 0.25)
        }

        function test_comesToRestWhenMotionIsReducedLater() {
            const flame = createTemporaryObject(flameComponent, stage)
            tryVerify(() => flame.heightScale > 0.96, 5000)
            Motion.reduced = true
            compare(flame.heightScale, 0.95)
            compare(flame.widthScale, 0.97)
        }
    }
}
