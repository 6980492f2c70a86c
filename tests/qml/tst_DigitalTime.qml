pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko

Item {
    id: stage

    width: 300
    height: 100

    Component {
        id: timeComponent

        DigitalTime {
            color: "white"
            font: Typography.clock
            rolls: true
            text: "25:00"
        }
    }

    TestCase {
        name: "DigitalTime"
        when: windowShown

        function cleanup() {
            Motion.reduced = false
        }

        function make() {
            const time = createTemporaryObject(timeComponent, stage)
            waitForRendering(time)
            return time
        }

        function digits(time) {
            return Array.from(time.children).filter(item => item instanceof RollingDigit)
        }

        function test_aDigitThatChangesRollsToTheNext() {
            const time = make()
            const last = digits(time)[4]
            let low = 1
            last.rollChanged.connect(() => low = Math.min(low, last.roll))
            time.text = "25:01"
            compare(last.leavingValue, "0")
            compare(last.shownValue, "1")
            verify(last.roll < 1)
            compare(last.travel, last.height / 3)
            tryCompare(last, "roll", 1)
            verify(low < 0.5)
        }

        function test_theOtherDigitsStandStill() {
            const time = make()
            time.text = "25:01"
            verify(digits(time).slice(0, 4).every(digit => digit.roll === 1 && digit.leavingValue === ""))
        }

        function test_nothingRollsWithReducedMotion() {
            const time = make()
            Motion.reduced = true
            time.text = "25:01"
            compare(digits(time)[4].roll, 1)
            compare(digits(time)[4].shownValue, "1")
        }

        function test_itsCellsHaveOneWidth() {
            const time = make()
            const before = time.width
            time.text = "11:11"
            compare(time.width, before)
            const widths = digits(time).filter(digit => digit.value !== ":").map(digit => digit.width)
            verify(widths.every(width => width === time.digitWidth))
        }
    }
}
