#include "Models/LocalTime.h"
#include "Store/AppState.h"
#include "Tasks/TasksPanelViewModel.h"
#include "support/ManualCalendarStore.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualPreferences.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
/// A library and the open panel.
struct PanelDesk {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualPreferences preferences;
    ManualCalendarStore calendars;
    AppState appState{scheduler, clock, file};
    std::unique_ptr<TasksPanelViewModel> panel;

    PanelDesk() { openPanel(); }

    void openPanel()
    {
        panel = std::make_unique<TasksPanelViewModel>(
            appState, TasksServices{scheduler, clock, preferences, calendars, QLocale(u"en_US"_s)});
    }

    /// Adds a page with this title and a checklist, with "x" before ticked entries, and opens it.
    PelkoDocument add(const QString &title, const QStringList &tasks = {})
    {
        appState.createDocument(Space::work);
        PelkoDocument document = *appState.openDocument();
        document.blocks[0].content = title;
        if (!tasks.isEmpty()) {
            document.blocks.append(Block(BlockType::sticky));
            document.blocks.last().todos.emplace();
            for (const QString &task : tasks)
                document.blocks.last().todos->append({.text = task.mid(1), .done = task.startsWith(u'x')});
        }
        appState.updateDocument(document);
        return *appState.openDocument();
    }

    /// Returns the rows of the list: headings as they are, tasks as they were added.
    QStringList list() const
    {
        QStringList lines;
        for (const TaskListRow &row : static_cast<TaskListModel *>(panel->tasks())->rows()) {
            const QString mark = row.done ? u"x"_s : u"-"_s;
            lines << (row.kind == TaskListRow::Kind::heading ? row.text : mark + row.text);
        }
        return lines;
    }

    using Operation = void (TasksPanelViewModel::*)(const QString &, const QString &, const QString &);
    /// Applies an operation to the task in this row of the list.
    void apply(Operation operation, qsizetype line)
    {
        const TaskListRow row = static_cast<TaskListModel *>(panel->tasks())->rows().at(line);
        ((*panel).*operation)(row.docID.toString(), row.blockID.toString(), row.todoID.toString());
    }

    void passMinutes(int minutes)
    {
        for (int minute = 0; minute < minutes; ++minute) {
            clock.time += 60;
            scheduler.advance(60s);
        }
    }
};
} // namespace

class TestTasksPanelViewModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListFollowsTheStore();
    void aTickedTaskStaysListedAndIsNotCounted();
    void toggleWritesTheDocumentEachTime();
    void deleteOfTheLastTaskEmptiesTheListAndKeepsTheBlock();
    void unknownIdChangesNothing();
    void aTaskOfAnotherPageIsTickedThere();
    void theKeyboardWalksOverHeadings();
    void blanksAloneAreNoTask();
    void aNewTaskKeepsItsBlanks();
    void aNewTaskWithoutAnOpenDocumentIsDropped();
    void newTasksGoIntoTheChecklistThatTheFirstOneMade();
    void thePillTellsWordsAndAgeOfTheOpenDocument();
    void thePillIsThereWhileADocumentIsOpen();
    void theAgeGrowsWithTheMinutes();
    void wordsAreSummedOverTheLibrary();
    void theStreakGoesOnAtMidnight();
    void theStreakGoesOnWithTheFirstKeyOfADay();
    void aClockSetBackBeginsTheStreakAnew();
    void anotherZoneIsAnotherTimeAndDay();
    void aPanelOpenedAgainHasNothingInItsField();
    void aPanelThatIsGoneNoLongerTicks();
    void thePanelWaitsWhileItIsOutOfSight();
    void theEventsAreFetchedWhenThePanelComesIntoSight();
};

void TestTasksPanelViewModel::theListFollowsTheStore()
{
    PanelDesk desk;
    QCOMPARE(desk.list(), QStringList{});
    QCOMPARE(desk.panel->pendingCount(), 0);

    desk.add(u"Packing list"_s, {u"-wool socks"_s, u"xpens"_s});
    desk.add(u"Nothing to do"_s);
    PelkoDocument last = desk.add(u"Spring issue"_s, {u"-cover"_s});
    QCOMPARE(desk.list(),
             QStringList({u"PACKING LIST"_s, u"-wool socks"_s, u"xpens"_s, u"SPRING ISSUE"_s, u"-cover"_s}));
    QCOMPARE(desk.panel->pendingCount(), 2);

    last.blocks.last().todos->append({.text = u"opener"_s});
    desk.appState.updateDocument(last);
    QCOMPARE(desk.list().last(), u"-opener"_s);
    QCOMPARE(desk.panel->pendingCount(), 3);
}

void TestTasksPanelViewModel::aTickedTaskStaysListedAndIsNotCounted()
{
    PanelDesk desk;
    desk.add(u"Packing list"_s, {u"-socks"_s});
    const QSignalSpy counted(desk.panel.get(), &TasksPanelViewModel::pendingCountChanged);

    desk.apply(&TasksPanelViewModel::toggleTodo, 1);
    QCOMPARE(desk.list(), QStringList({u"PACKING LIST"_s, u"xsocks"_s}));
    QCOMPARE(desk.panel->pendingCount(), 0);
    QCOMPARE(counted.count(), 1);
}

void TestTasksPanelViewModel::toggleWritesTheDocumentEachTime()
{
    PanelDesk desk;
    const PelkoDocument before = desk.add(u"Packing list"_s, {u"-socks"_s});
    desk.scheduler.advance(1s);
    const int writes = desk.file.writes();

    for (int time = 1; time <= 2; ++time) {
        desk.clock.time += 1;
        desk.apply(&TasksPanelViewModel::toggleTodo, 1);
        QCOMPARE(desk.appState.openDocument()->updatedAt, desk.clock.time);
        desk.scheduler.advance(1s);
        QCOMPARE(desk.file.writes(), writes + time);
    }
    QCOMPARE(desk.appState.openDocument()->blocks, before.blocks);
}

void TestTasksPanelViewModel::deleteOfTheLastTaskEmptiesTheListAndKeepsTheBlock()
{
    PanelDesk desk;
    desk.add(u"Packing list"_s, {u"-socks"_s, u"-pens"_s});
    desk.apply(&TasksPanelViewModel::deleteTodo, 1);
    QCOMPARE(desk.list(), QStringList({u"PACKING LIST"_s, u"-pens"_s}));

    desk.apply(&TasksPanelViewModel::deleteTodo, 1);
    QCOMPARE(desk.list(), QStringList{});
    QCOMPARE(desk.appState.openDocument()->blocks.last().type, BlockType::sticky);
    QCOMPARE(desk.appState.openDocument()->blocks.last().todos, QList<TodoItem>{});
}

void TestTasksPanelViewModel::unknownIdChangesNothing()
{
    PanelDesk desk;
    const PelkoDocument document = desk.add(u"Packing list"_s, {u"-socks"_s});
    desk.scheduler.advance(1s);
    const int writes = desk.file.writes();
    const QString docID = document.id.toString();
    const QString unknown = QUuid::createUuid().toString();

    desk.panel->toggleTodo(unknown, unknown, unknown);
    desk.panel->deleteTodo(unknown, unknown, unknown);
    desk.panel->toggleTodo(docID, unknown, unknown);
    desk.panel->deleteTodo(docID, unknown, unknown);
    desk.panel->toggleTodo(docID, document.blocks[2].id.toString(), unknown);
    desk.scheduler.advance(1s);
    QCOMPARE(desk.file.writes(), writes);
    QCOMPARE(desk.appState.documents(), QList<PelkoDocument>{document});
}

void TestTasksPanelViewModel::aTaskOfAnotherPageIsTickedThere()
{
    PanelDesk desk;
    desk.add(u"Packing list"_s, {u"-socks"_s});
    const PelkoDocument open = desk.add(u"Open"_s);

    desk.apply(&TasksPanelViewModel::toggleTodo, 1);
    QVERIFY(desk.appState.documents()[0].blocks.last().todos->first().done);
    QCOMPARE(desk.appState.openDocument(), open);
}

void TestTasksPanelViewModel::theKeyboardWalksOverHeadings()
{
    PanelDesk desk;
    QCOMPARE(desk.panel->taskNear(0), -1);
    desk.add(u"Packing list"_s, {u"-socks"_s, u"-pens"_s});
    desk.add(u"Spring issue"_s, {u"-cover"_s});

    QList<int> down;
    for (int row = desk.panel->taskNear(0); row >= 0; row = desk.panel->taskAfter(row))
        down.append(row);
    QCOMPARE(down, QList<int>({1, 2, 4}));
    QList<int> up;
    for (int row = desk.panel->taskNear(99); row >= 0; row = desk.panel->taskBefore(row))
        up.append(row);
    QCOMPARE(up, QList<int>({4, 2, 1}));
    QCOMPARE(desk.panel->taskNear(3), 4);
}

void TestTasksPanelViewModel::blanksAloneAreNoTask()
{
    PanelDesk desk;
    const PelkoDocument open = desk.add(u"Open"_s);
    for (const QString &blanks : {u""_s, u"  \t "_s, u"\u00a0\u2003"_s}) {
        desk.panel->typed(blanks);
        desk.panel->submitNewTask();
        QCOMPARE(desk.panel->newTaskText(), blanks);
        QCOMPARE(desk.appState.openDocument(), open);
    }
}

void TestTasksPanelViewModel::aNewTaskKeepsItsBlanks()
{
    PanelDesk desk;
    desk.add(u"Open"_s, {u"-first"_s});
    desk.panel->typed(u"  call the printer "_s);
    desk.panel->submitNewTask();

    QCOMPARE(desk.list(), QStringList({u"OPEN"_s, u"-first"_s, u"-  call the printer "_s}));
    QCOMPARE(desk.panel->newTaskText(), QString());
}

void TestTasksPanelViewModel::aNewTaskWithoutAnOpenDocumentIsDropped()
{
    PanelDesk desk;
    desk.add(u"Closed"_s);
    desk.appState.setOpenDocumentID(std::nullopt);
    const QList<PelkoDocument> before = desk.appState.documents();
    desk.panel->typed(u"call the printer"_s);
    desk.panel->submitNewTask();

    QCOMPARE(desk.appState.documents(), before);
    QCOMPARE(desk.panel->newTaskText(), QString());
}

void TestTasksPanelViewModel::newTasksGoIntoTheChecklistThatTheFirstOneMade()
{
    PanelDesk desk;
    desk.add(u"Open"_s);
    desk.panel->addQuickTask(u"one"_s);
    QCOMPARE(desk.appState.openDocument()->blocks.size(), 3);
    QCOMPARE(desk.appState.openDocument()->blocks.last().todos->size(), 1);

    desk.panel->addQuickTask(u"two"_s);
    QCOMPARE(desk.appState.openDocument()->blocks.size(), 3);
    QCOMPARE(desk.list(), QStringList({u"OPEN"_s, u"-one"_s, u"-two"_s}));
}

void TestTasksPanelViewModel::thePillTellsWordsAndAgeOfTheOpenDocument()
{
    PanelDesk desk;
    desk.add(u"The first hour"_s);
    QCOMPARE(desk.panel->openDocumentText(), u"3 words · Just now"_s);
    desk.add(u"One"_s);
    QCOMPARE(desk.panel->openDocumentText(), u"1 words · Just now"_s);
    desk.appState.setOpenDocumentID(desk.appState.documents()[0].id);
    QCOMPARE(desk.panel->openDocumentText(), u"3 words · Just now"_s);
}

void TestTasksPanelViewModel::thePillIsThereWhileADocumentIsOpen()
{
    PanelDesk desk;
    QVERIFY(!desk.panel->hasOpenDocument());
    desk.add(u"Open"_s);
    QVERIFY(desk.panel->hasOpenDocument());
    desk.appState.setOpenDocumentID(std::nullopt);
    QVERIFY(!desk.panel->hasOpenDocument());
}

void TestTasksPanelViewModel::theAgeGrowsWithTheMinutes()
{
    PanelDesk desk;
    desk.add(u"Open"_s);
    desk.passMinutes(5);
    QCOMPARE(desk.panel->openDocumentText(), u"1 words · 5m ago"_s);
}

void TestTasksPanelViewModel::wordsAreSummedOverTheLibrary()
{
    PanelDesk desk;
    QCOMPARE(desk.panel->wordTotal(), 0);
    QCOMPARE(desk.panel->wordGoal(), 500);
    desk.add(u"word "_s.repeated(200));
    desk.add(u"word "_s.repeated(50));
    QCOMPARE(desk.panel->wordTotal(), 250);
    QCOMPARE(desk.panel->wordProgress(), 0.5);
    desk.add(u"word "_s.repeated(750));
    QCOMPARE(desk.panel->wordTotal(), 1000);
    QCOMPARE(desk.panel->wordProgress(), 1.0);
}

void TestTasksPanelViewModel::theStreakGoesOnAtMidnight()
{
    PanelDesk desk;
    desk.clock.time = timestampOf(QDateTime(QDate(2026, 11, 20), QTime(23, 58, 30), QTimeZone::utc()));
    desk.preferences.values.clear();
    desk.openPanel();
    QCOMPARE(desk.panel->currentStreak(), 1);
    QCOMPARE(desk.panel->streakUnit(), u"day"_s);

    desk.passMinutes(1);
    QCOMPARE(desk.panel->currentStreak(), 1);
    desk.passMinutes(1);
    QCOMPARE(desk.panel->currentStreak(), 2);
    QCOMPARE(desk.panel->streakUnit(), u"days"_s);
}

void TestTasksPanelViewModel::theStreakGoesOnWithTheFirstKeyOfADay()
{
    PanelDesk desk;
    PelkoDocument open = desk.add(u"Open"_s);
    QCOMPARE(desk.panel->currentStreak(), 1);
    desk.clock.time += 86400;
    open.blocks[0].content += u'x';
    desk.appState.updateDocument(open);
    QCOMPARE(desk.panel->currentStreak(), 2);
}

void TestTasksPanelViewModel::aClockSetBackBeginsTheStreakAnew()
{
    PanelDesk desk;
    desk.clock.time += 86400;
    desk.passMinutes(1);
    QCOMPARE(desk.panel->currentStreak(), 2);
    desk.clock.time -= 2 * 86400;
    desk.passMinutes(1);
    QCOMPARE(desk.panel->currentStreak(), 1);
}

void TestTasksPanelViewModel::anotherZoneIsAnotherTimeAndDay()
{
    PanelDesk desk;
    desk.clock.time = timestampOf(QDateTime(QDate(2026, 11, 20), QTime(22, 0), QTimeZone::utc()));
    desk.preferences.values.clear();
    desk.openPanel();
    QCOMPARE(desk.panel->time() + desk.panel->timeMarker() + desk.panel->dateString(),
             u"10:00PMFriday, Nov 20"_s);

    desk.clock.zone = QTimeZone("Pacific/Auckland");
    desk.passMinutes(1);
    QCOMPARE(desk.panel->time() + desk.panel->timeMarker() + desk.panel->dateString(),
             u"11:01AMSaturday, Nov 21"_s);
    QCOMPARE(desk.panel->currentStreak(), 2);
}

void TestTasksPanelViewModel::aPanelOpenedAgainHasNothingInItsField()
{
    PanelDesk desk;
    desk.panel->typed(u"half a thou"_s);
    desk.openPanel();
    QCOMPARE(desk.panel->newTaskText(), QString());
}

void TestTasksPanelViewModel::aPanelThatIsGoneNoLongerTicks()
{
    PanelDesk desk;
    desk.panel.reset();
    desk.preferences.writes = 0;
    desk.clock.time += 86400;
    desk.scheduler.advance(120s);
    QCOMPARE(desk.preferences.writes, 0);
}

void TestTasksPanelViewModel::thePanelWaitsWhileItIsOutOfSight()
{
    PanelDesk desk;
    PelkoDocument open = desk.add(u"Open"_s);
    desk.panel->setSeen(false);
    desk.clock.time += 86400;
    desk.passMinutes(1);
    open.blocks[0].content += u'x';
    desk.appState.updateDocument(open);
    QCOMPARE(desk.panel->currentStreak(), 1);
    QCOMPARE(desk.calendars.windows.size(), 1);

    const QSignalSpy told(desk.panel.get(), &TasksPanelViewModel::currentTimeChanged);
    desk.panel->setSeen(true);
    QCOMPARE(desk.panel->currentStreak(), 2);
    QCOMPARE(told.count(), 1);
}

void TestTasksPanelViewModel::theEventsAreFetchedWhenThePanelComesIntoSight()
{
    PanelDesk desk;
    desk.panel->setSeen(true);
    QCOMPARE(desk.calendars.windows.size(), 1);
    desk.panel->setSeen(false);
    desk.clock.time += 30;
    desk.panel->setSeen(true);
    QCOMPARE(desk.calendars.windows.size(), 2);
    QCOMPARE(desk.calendars.windows.last().from, desk.clock.time);
}

PELKO_TEST(TestTasksPanelViewModel)
#include "tst_TasksPanelViewModel.moc"
