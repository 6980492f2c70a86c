pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Pelko
import PelkoTest

Item {
    id: stage

    width: 400
    height: 750

    Component {
        id: stand

        FocusScope {
            readonly property alias bench: bench
            property var view: null

            function openPanel() {
                bench.tasks.toggle()
                view = panel.createObject(this, { panel: bench.tasks.panel })
            }

            width: Metrics.panelWidth
            height: stage.height
            focus: true

            Component {
                id: panel

                TasksPanelView {
                    width: parent.width
                    height: parent.height
                    focus: true
                }
            }

            // Stands last so that it outlives the views.
            TasksFixture { id: bench }
        }
    }

    TestCase {
        name: "TasksPanelView"
        when: windowShown

        property var bench
        property var view

        function find(item, fits) {
            return ItemTree.all(item).find(item => item.visible && fits(item)) ?? null
        }

        function count(item, fits) {
            return ItemTree.all(item).filter(fits).length
        }

        function text(words) {
            return find(view, item => item instanceof Text && item.text === words)
        }

        function called(name) {
            return find(view, item => item instanceof PressableControl && item.name === name)
        }

        function kind(type) {
            return find(view, item => item instanceof type)
        }

        function list() {
            return find(view, item => item instanceof ListView)
        }

        function digits(item) {
            return find(item, child => child instanceof DigitalTime).text
        }

        function open(pages: var) {
            const made = createTemporaryObject(stand, stage)
            bench = made.bench
            bench.setTime(7, 42)
            for (const page of pages)
                bench.add(page[0], page.slice(1))
            made.openPanel()
            view = made.view
            view.forceActiveFocus()
            wait(0)
        }

        function field() {
            return find(view, item => item instanceof LineField)
        }

        function type(words: string) {
            field().forceActiveFocus()
            for (const letter of words)
                keyClick(letter)
        }

        function cleanup() {
            Motion.reduced = false
        }

        function test_withoutAnOpenDocumentTheClockComesFirst() {
            open([["Closed"]])
            const pill = kind(DocumentPill)
            verify(pill.y < kind(ClockCard).y)
            bench.closeDocument()
            tryVerify(() => kind(DocumentPill) === null)
            tryCompare(kind(ClockCard), "y", 0)
        }

        function test_thePillHasNoSingular() {
            open([["One"]])
            compare(kind(DocumentPill).text, "1 words · Just now")
            bench.passMinutes(5)
            compare(kind(DocumentPill).text, "1 words · 5m ago")
        }

        function test_theCardsStandInTheirOrder() {
            open([["Page", "-do"]])
            const order = [DocumentPill, ClockCard, TasksCard, WordGoalCard, StreakCard, CalendarCard]
            for (let i = 1; i < order.length; ++i) {
                const above = kind(order[i - 1])
                tryVerify(() => kind(order[i]).y === above.y + above.height + Metrics.panelPadding)
            }
        }

        function test_theClockRollsWithTheMinute() {
            open([])
            const clock = kind(ClockCard)
            compare(digits(clock), "7:42")
            verify(text("AM"))
            verify(text("Thursday, Oct 16"))
            bench.passMinutes(1)
            compare(digits(clock), "7:43")
            bench.setTime(12, 59)
            bench.passMinutes(1)
            compare(digits(clock), "1:00")
            verify(text("PM"))
        }

        function rows() {
            return ItemTree.all(kind(CalendarCard)).filter(item => item instanceof EventRow)
                .map(item => item.Accessible.name)
        }

        function badge(card) {
            return find(card, item => item instanceof CountBadge)
        }

        function test_nothingScheduledIsToldInWords() {
            open([])
            verify(text("UP NEXT"))
            verify(text("Nothing scheduled"))
            compare(badge(kind(CalendarCard)), null)
            bench.tellEvents([])
            verify(text("Nothing scheduled"))
        }

        function test_threeOfFiveEventsAreShown() {
            open([])
            bench.tellEvents(["200 Dentist", "-10 Walk", "20 ", "300 Train", "100 Tea with everybody there is at the table by the window"])
            compare(rows(), ["Walk, 7:32 AM", "Untitled, 8:02 AM", "Tea with everybody there is at the table by the window, 9:22 AM"])
            verify(!text("Nothing scheduled"))
            compare(badge(kind(CalendarCard)).count, 5)
            const title = text("Tea with everybody there is at the table by the window")
            verify(title.truncated)
            verify(title.mapToItem(kind(CalendarCard), 0, 0).x + title.width <= kind(CalendarCard).width)
        }

        function test_theCardGrowsWithItsEvents() {
            open([])
            const card = kind(CalendarCard)
            const height = card.height
            bench.tellEvents(["20 Tea", "40 Milk", "60 Bread"])
            tryVerify(() => card.height > height + Metrics.eventBarHeight)
        }

        function test_noTasksAreToldInWords() {
            open([["Page"], ["Other"]])
            verify(text("No tasks yet."))
            verify(!kind(CountBadge))
        }

        function test_tasksStandUnderTheTitleOfTheirPage() {
            open([["Packing list", "-wool socks", "xpens"], ["Spring issue", "-cover"]])
            verify(!text("No tasks yet."))
            verify(text("PACKING LIST").mapToItem(view, 0, 0).y < text("wool socks").mapToItem(view, 0, 0).y)
            verify(text("pens").mapToItem(view, 0, 0).y < text("SPRING ISSUE").mapToItem(view, 0, 0).y)
            compare(kind(CountBadge).count, 2)
        }

        // The lines through a text.
        function strikes(words) {
            return Array.from(text(words).children).filter(child => child instanceof Rectangle)
        }

        function test_aDoneTaskIsStruckThroughInAColourOfItsOwn() {
            const wordy = "write to everybody who has ever asked about the old house by the lake and never got an answer"
            open([["Packing list", "-socks", "xpens", "x" + wordy]])
            compare(strikes("socks").length, 0)
            compare(strikes("pens").length, 1)
            verify(!text("pens").font.strikeout)
            const line = strikes("pens")[0]
            compare(String(line.color), String(FirePalette.white(0.25)))
            verify(Math.abs(line.width - text("pens").contentWidth) < 1, `${line.width} of ${text("pens").contentWidth}`)
            verify(line.y > text("pens").height / 3 && line.y < text("pens").height * 3 / 4, line.y)
            compare(text(wordy).lineCount, 2)
            compare(strikes(wordy).length, 2)
            compare(strikes(wordy)[1].y, strikes(wordy)[0].y + Typography.taskLine)
            verify(strikes(wordy).every(line => line.width > text(wordy).width / 2 && line.width <= text(wordy).width))
            mouseClick(called("socks"))
            tryVerify(() => strikes("socks").length === 1)
        }

        function test_theBadgeGoesWithTheLastOpenTask() {
            open([["Packing list", "-socks", "xpens"]])
            mouseClick(called("socks"))
            compare(bench.tasksOf(0), ["xsocks", "xpens"])
            tryVerify(() => kind(CountBadge) === null)
            tryVerify(() => String(text("socks").color) === String(FirePalette.white(0.3)))
            mouseClick(called("socks"))
            compare(bench.tasksOf(0), ["-socks", "xpens"])
            compare(kind(CountBadge).count, 1)
        }

        function test_theOtherButtonsOfThePointerChangeNoTask() {
            open([["Packing list", "-socks", "xpens"]])
            for (const button of [Qt.RightButton, Qt.MiddleButton]) {
                mouseClick(called("socks"), 5, 5, button)
                mouseClick(called("Delete socks"), 5, 5, button)
            }
            compare(bench.tasksOf(0), ["-socks", "xpens"])
        }

        function test_aTickIsWhatTheStoreSays() {
            open([["Packing list", "-socks"]])
            const toggle = called("socks")
            compare(toggle.Accessible.checked, false)
            bench.tasks.panel.toggleTodo(toggle.parent.docID, toggle.parent.blockID, toggle.parent.todoID)
            compare(toggle.Accessible.checked, true)
            compare(toggle.Accessible.role, Accessible.CheckBox)
        }

        function test_aTaskIsDeletedAndShrinksAway() {
            open([["Packing list", "-socks", "-pens"]])
            const height = list().contentHeight
            mouseClick(called("Delete socks"))
            compare(bench.tasksOf(0), ["-pens"])
            verify(list().contentHeight > height - 22)
            tryCompare(list(), "contentHeight", height - 22)
            mouseClick(called("Delete pens"))
            tryVerify(() => text("No tasks yet."))
            compare(bench.tasksOf(0), [])
        }

        function test_aNewTaskGoesToTheOpenPage() {
            open([["Packing list"]])
            type("  socks ")
            keyClick(Qt.Key_Return)
            compare(bench.tasksOf(0), ["-  socks "])
            compare(field().text, "")
            tryVerify(() => called("  socks "))
        }

        function test_blanksStayInTheField() {
            open([["Packing list"]])
            type("   ")
            keyClick(Qt.Key_Return)
            compare(bench.tasksOf(0), [])
            compare(field().text, "   ")
        }

        function test_aNewTaskWithoutAnOpenPageIsDropped() {
            open([["Packing list"]])
            bench.closeDocument()
            type("socks")
            keyClick(Qt.Key_Return)
            compare(bench.tasksOf(0), [])
            compare(field().text, "")
        }

        function test_theKeyboardTicksWalksAndDeletes() {
            open([["Packing list", "-socks", "-pens"], ["Spring issue", "-cover"]])
            field().forceActiveFocus()
            keyClick(Qt.Key_Tab)
            verify(called("socks").activeFocus)
            keyClick(Qt.Key_Space)
            compare(bench.tasksOf(0), ["xsocks", "-pens"])
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            verify(called("cover").activeFocus)
            keyClick(Qt.Key_Down)
            verify(called("cover").activeFocus)
            keyClick(Qt.Key_Up)
            verify(called("pens").activeFocus)
            keyClick(Qt.Key_Tab)
            verify(called("Delete pens").activeFocus)
            keyClick(Qt.Key_Return)
            compare(bench.tasksOf(0), ["xsocks"])
            verify(called("cover").activeFocus)
            keyClick(Qt.Key_Delete)
            compare(bench.tasksOf(1), [])
            verify(called("socks").activeFocus)
            keyClick(Qt.Key_Delete)
            tryVerify(() => field().activeFocus)
        }

        function test_theListEndsAtItsHeightAndMakesOnlyRowsInSight() {
            const tasks = []
            for (let i = 0; i < 10000; ++i)
                tasks.push("-task " + i)
            open([["Long list", ...tasks]])
            compare(list().height - 2 * Metrics.space10, Metrics.taskListHeight)
            verify(list().interactive)
            verify(count(list(), item => item instanceof TaskRow) < 40)
            compare(kind(CountBadge).count, 10000)
            list().positionViewAtEnd()
            tryVerify(() => text("task 9999"))
        }

        function test_aRowFadesWithThePartThatIsInSight() {
            const tasks = []
            for (let i = 0; i < 20; ++i)
                tasks.push("-task " + i)
            open([["Long list", ...tasks]])
            const opacityOf = name => called(name).parent.opacity
            compare(opacityOf("task 0"), 1)
            list().contentY = called("task 0").parent.y + 11
            compare(opacityOf("task 0"), 0.5)
            compare(opacityOf("task 1"), 1)
            list().positionViewAtEnd()
            tryVerify(() => opacityOf("task 19") === 1)
        }

        function test_longTasksTakeTwoLinesAndNoMore() {
            open([["Page", "-" + "a long errand ".repeat(20)]])
            const words = find(list(), item => item instanceof Text && item.text.startsWith("a long"))
            compare(words.lineCount, 2)
            verify(words.truncated)
        }

        function test_theGoalFillsAndStaysFull_data() {
            return [
                { words: 0, part: 0 },
                { words: 250, part: 0.5 },
                { words: 500, part: 1 },
                { words: 1000, part: 1 },
            ]
        }

        function test_theGoalFillsAndStaysFull(row: var) {
            open([["word ".repeat(row.words)]])
            compare(digits(kind(WordGoalCard)), String(row.words))
            verify(text("/ 500"))
            compare(kind(GoalProgressBar).part, row.part)
        }

        function test_theBarEasesToANewLength() {
            open([["word ".repeat(100)]])
            compare(kind(GoalProgressBar).part, 0.2)
            bench.add("word ".repeat(300))
            verify(kind(GoalProgressBar).part < 0.5)
            tryCompare(kind(GoalProgressBar), "part", 0.8)
        }

        function test_aStreakOfOneIsADay() {
            open([])
            compare(digits(kind(StreakCard)), "1")
            verify(text("day"))
            bench.setTime(23, 59)
            bench.passMinutes(1)
            compare(digits(kind(StreakCard)), "2")
            verify(text("days"))
        }

        function test_aLowWindowScrollsToWhatHasTheKeyboard() {
            open([["Page", "-one", "-two", "-three"]])
            view.height = 260
            const scroll = find(view, item => item instanceof Flickable)
            compare(scroll.contentY, 0)
            field().forceActiveFocus()
            keyClick(Qt.Key_Tab)
            keyClick(Qt.Key_Down)
            keyClick(Qt.Key_Down)
            verify(called("three").activeFocus)
            verify(called("three").mapToItem(view, 0, 22).y <= 260)
            verify(scroll.contentY > 0)
        }

        function test_theFlameStandsStillWhereItIsNotSeen() {
            open([["Page", "-one", "-two", "-three"]])
            const flame = kind(AnimatedFlame)
            verify(flame.seen)
            view.height = 260
            tryVerify(() => !flame.seen)
            view.visible = false
            view.height = 750
            verify(!flame.seen)
        }
    }
}
