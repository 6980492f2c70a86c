#include "Models/LocalTime.h"
#include "Store/AppState.h"
#include "Tasks/TasksViewModel.h"
#include "support/ManualCalendarStore.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualPreferences.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QPointer>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
struct Window {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualPreferences preferences;
    ManualCalendarStore calendars;
    AppState appState{scheduler, clock, file};
    TasksViewModel tasks{appState, {scheduler, clock, preferences, calendars, QLocale(u"en_US"_s)}};
};
} // namespace

class TestTasksViewModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theToggleFollowsTheStore();
    void thePanelIsOpenInTheWorkSpaceOnly();
    void eachOpeningMakesANewPanel();
    void aClosedPanelStaysUntilItHasLeft();
    void aPanelThatIsOpenedAgainIsNotTakenAway();
    void aPanelIsNotTakenAwayWhileItsViewIsMade();
    void thePanelShowsTheTimeOfItsOpeningAndTicksEachMinute();
    void eachOpeningAsksForTheEventsAnew();
};

void TestTasksViewModel::theToggleFollowsTheStore()
{
    Window window;
    const QSignalSpy changed(&window.tasks, &TasksViewModel::isShownChanged);

    window.appState.setShowTasksPanel(true);
    QVERIFY(window.tasks.isShown());
    window.tasks.toggle();
    QVERIFY(!window.appState.showTasksPanel());
    QCOMPARE(changed.count(), 2);
}

void TestTasksViewModel::thePanelIsOpenInTheWorkSpaceOnly()
{
    Window window;
    window.tasks.toggle();
    QVERIFY(window.tasks.isOffered());
    QVERIFY(window.tasks.isOpen());

    for (const Space space : {Space::ideas, Space::journal}) {
        window.appState.setCurrentSpace(space);
        QVERIFY(!window.tasks.isOffered());
        QVERIFY(!window.tasks.isOpen());
        QVERIFY(window.tasks.isShown());
    }
    window.appState.setCurrentSpace(Space::work);
    QVERIFY(window.tasks.isOpen());
}

void TestTasksViewModel::eachOpeningMakesANewPanel()
{
    Window window;
    QVERIFY(!window.tasks.panel());
    window.tasks.toggle();
    const QPointer<TasksPanelViewModel> first = window.tasks.panel();
    QVERIFY(first);

    window.tasks.toggle();
    window.tasks.toggle();
    QVERIFY(window.tasks.panel() != first);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!first);
}

void TestTasksViewModel::aClosedPanelStaysUntilItHasLeft()
{
    Window window;
    window.tasks.toggle();
    const QPointer<TasksPanelViewModel> panel = window.tasks.panel();
    window.tasks.toggle();
    QCOMPARE(window.tasks.panel(), panel);

    window.tasks.panelLeft();
    QVERIFY(!window.tasks.panel());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!panel);
}

void TestTasksViewModel::aPanelThatIsOpenedAgainIsNotTakenAway()
{
    Window window;
    window.tasks.toggle();
    window.tasks.panelLeft();
    QVERIFY(window.tasks.panel());
}

void TestTasksViewModel::aPanelIsNotTakenAwayWhileItsViewIsMade()
{
    Window window;
    // The closing animation of the view before may go on meanwhile.
    connect(&window.tasks, &TasksViewModel::panelChanged, &window.tasks, &TasksViewModel::panelLeft);
    window.tasks.toggle();
    QVERIFY(window.tasks.panel());
}

void TestTasksViewModel::thePanelShowsTheTimeOfItsOpeningAndTicksEachMinute()
{
    Window window;
    const QDateTime opening(QDate(2025, 10, 16), QTime(7, 41, 59), QTimeZone::utc());
    window.clock.time = timestampOf(opening);
    window.tasks.toggle();
    const TasksPanelViewModel &panel = *window.tasks.panel();
    QCOMPARE(panel.time() + panel.timeMarker() + panel.dateString(), u"7:41AMThursday, Oct 16"_s);

    window.clock.time += 59;
    window.scheduler.advance(59s);
    QCOMPARE(panel.time(), u"7:41"_s);

    const QSignalSpy changed(&panel, &TasksPanelViewModel::currentTimeChanged);
    window.clock.time += 1;
    window.scheduler.advance(1s);
    QCOMPARE(panel.time(), u"7:42"_s);
    QCOMPARE(changed.count(), 1);
}

void TestTasksViewModel::eachOpeningAsksForTheEventsAnew()
{
    Window window;
    QCOMPARE(window.calendars.windows.size(), 0);
    window.tasks.toggle();
    QCOMPARE(window.calendars.windows.size(), 1);
    window.calendars.answer(QList{CalendarEvent{.title = u"Tea"_s}});
    QCOMPARE(window.tasks.panel()->upcomingEvents()->total(), 1);
    window.scheduler.advance(60s);
    QCOMPARE(window.calendars.windows.size(), 1); // not with the clock

    window.tasks.toggle();
    window.tasks.toggle();
    QCOMPARE(window.calendars.windows.size(), 2);
    QCOMPARE(window.tasks.panel()->upcomingEvents()->total(), 0);
}

PELKO_TEST(TestTasksViewModel)
#include "tst_TasksViewModel.moc"
