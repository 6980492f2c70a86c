#include "Models/LocalTime.h"
#include "Tasks/UpcomingEvents.h"
#include "support/ManualCalendarStore.h"
#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{
struct EventsDesk {
    ManualClock clock;
    ManualCalendarStore store;
    UpcomingEvents events{store, clock, QLocale(u"en_US"_s)};

    EventsDesk() { setTime(QDateTime(QDate(2025, 10, 16), QTime(7, 42), QTimeZone::utc())); }

    void setTime(const QDateTime &time)
    {
        clock.zone = time.timeZone();
        clock.time = timestampOf(time);
    }

    /// An event of half an hour in so many minutes.
    CalendarEvent event(const QString &title, int minutes) const
    {
        const Timestamp start = clock.time + minutes * 60;
        return {.title = title, .start = start, .end = start + 1800, .identifier = title};
    }

    void passMinutes(int minutes)
    {
        for (int minute = 0; minute < minutes; ++minute) {
            clock.time += 60;
            events.followClock();
        }
    }
    qsizetype fetches() const { return store.windows.size(); }

    void fetch(const CalendarStore::Answer &answer)
    {
        events.fetchEvents();
        store.answer(answer);
    }

    /// The rows, like "Tea 9:30 AM".
    QStringList rows() const
    {
        QStringList rows;
        for (int row = 0; row < events.rowCount(); ++row) {
            const QModelIndex index = events.index(row);
            rows << index.data(UpcomingEvents::TitleRole).toString() + u' ' +
                        index.data(UpcomingEvents::TimeRole).toString();
        }
        return rows;
    }
};
} // namespace

class TestUpcomingEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsShownUntilTheAnswerComes()
    {
        EventsDesk desk;
        desk.events.fetchEvents();
        QCOMPARE(desk.rows(), QStringList());
        QCOMPARE(desk.events.total(), 0);
        desk.store.answer(QList{desk.event(u"Tea"_s, 60)});
        QCOMPARE(desk.rows(), QStringList{u"Tea 8:42 AM"_s});
    }

    void withoutAccessTheListStaysAsItWas()
    {
        EventsDesk desk;
        desk.fetch(std::nullopt);
        QCOMPARE(desk.events.total(), 0);
        desk.fetch(QList{desk.event(u"Tea"_s, 60)});
        desk.fetch(std::nullopt);
        QCOMPARE(desk.rows(), QStringList{u"Tea 8:42 AM"_s});
    }

    void ofFiveEventsThreeAreShownAndAllCounted()
    {
        EventsDesk desk;
        const QSignalSpy counted(&desk.events, &UpcomingEvents::totalChanged);
        desk.fetch(QList{desk.event(u"E"_s, 500), desk.event(u"D"_s, 400), desk.event(u"C"_s, 300),
                         desk.event(u"B"_s, 200), desk.event(u"A"_s, 100)});
        QCOMPARE(desk.rows(), (QStringList{u"A 9:22 AM"_s, u"B 11:02 AM"_s, u"C 12:42 PM"_s}));
        QCOMPARE(desk.events.total(), 5);
        QCOMPARE(counted.count(), 1);
    }

    void theListIsReplacedAsAWhole()
    {
        EventsDesk desk;
        desk.fetch(QList{desk.event(u"A"_s, 100), desk.event(u"B"_s, 200)});
        desk.fetch(QList{desk.event(u"C"_s, 300)});
        QCOMPARE(desk.rows(), QStringList{u"C 12:42 PM"_s});
        desk.fetch(QList<CalendarEvent>());
        QCOMPARE(desk.events.total(), 0);
    }

    void runningEventComesFirstWithItsPastStart()
    {
        EventsDesk desk;
        desk.fetch(QList{desk.event(u"Next"_s, 60), desk.event(u"Now"_s, -60)});
        QCOMPARE(desk.rows(), (QStringList{u"Now 6:42 AM"_s, u"Next 8:42 AM"_s}));
    }

    void eventsOfTheSameStartKeepTheOrderOfTheStore()
    {
        EventsDesk desk;
        QList<CalendarEvent> events;
        for (int index = 0; index < 100; ++index)
            events << desk.event(QString::number(index), 60 - index % 2);
        desk.fetch(events);
        QStringList order;
        for (const CalendarEvent &event : desk.events.upcomingEvents())
            order << *event.title;
        QStringList expected;
        for (int index = 0; index < 100; ++index)
            expected << QString::number(index < 50 ? 2 * index + 1 : 2 * (index - 50));
        QCOMPARE(order, expected);
    }

    void pageWithoutTitleIsUntitled()
    {
        EventsDesk desk;
        desk.fetch(QList{CalendarEvent{.start = desk.clock.time}});
        QCOMPARE(desk.rows(), QStringList{u"Untitled 7:42 AM"_s});
        QCOMPARE(desk.events.index(0).data(UpcomingEvents::EventIdentifierRole).toString(), QString());
    }

    void theTimeIsThatOfTheUser_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QTime>("utc");
        QTest::addColumn<QString>("told");
        QTest::newRow("midnight") << "UTC"_ba << QTime(0, 0) << u"12:00 AM"_s;
        QTest::newRow("morning") << "UTC"_ba << QTime(9, 5) << u"9:05 AM"_s;
        QTest::newRow("noon") << "UTC"_ba << QTime(12, 0) << u"12:00 PM"_s;
        QTest::newRow("night") << "UTC"_ba << QTime(23, 59) << u"11:59 PM"_s;
        QTest::newRow("elsewhere") << "America/New_York"_ba << QTime(9, 5) << u"5:05 AM"_s;
    }
    void theTimeIsThatOfTheUser()
    {
        QFETCH(QByteArray, zone);
        QFETCH(QTime, utc);
        QFETCH(QString, told);
        EventsDesk desk;
        desk.clock.zone = QTimeZone(zone);
        const Timestamp start = timestampOf(QDateTime(QDate(2025, 10, 16), utc, QTimeZone::utc()));
        QCOMPARE(desk.events.eventTimeString({.start = start}), told);
    }

    void theWindowIsTheComingDayOfTheCalendar_data()
    {
        QTest::addColumn<QDate>("day");
        QTest::addColumn<int>("hours");
        QTest::newRow("ordinary") << QDate(2025, 10, 16) << 24;
        QTest::newRow("into winter") << QDate(2025, 10, 25) << 25;
        QTest::newRow("into summer") << QDate(2026, 3, 28) << 23;
    }
    void theWindowIsTheComingDayOfTheCalendar()
    {
        QFETCH(QDate, day);
        QFETCH(int, hours);
        EventsDesk desk;
        desk.setTime(QDateTime(day, QTime(12, 0), QTimeZone("Europe/Berlin")));
        desk.events.fetchEvents();
        const CalendarWindow window = desk.store.windows.first();
        QCOMPARE(window.from, desk.clock.time);
        QCOMPARE((window.to - window.from) / 3600, double(hours));
        QCOMPARE(window.zone, desk.clock.zone);
    }

    void aDestroyedModelTakesItsRequestBack()
    {
        ManualClock clock;
        ManualCalendarStore store;
        auto events = std::make_unique<UpcomingEvents>(store, clock, QLocale());
        events->fetchEvents();
        QVERIFY(store.isWaitedFor());
        events.reset();
        QVERIFY(!store.isWaitedFor());
    }

    void theClockAloneFetchesNothing()
    {
        EventsDesk desk;
        desk.fetch(QList{desk.event(u"Tea"_s, 600)});
        desk.passMinutes(599);
        QCOMPARE(desk.fetches(), 1);
    }

    void anEndedEventIsFetchedAway()
    {
        EventsDesk desk;
        desk.fetch(QList{desk.event(u"Now"_s, -20), desk.event(u"Next"_s, 60)});
        desk.passMinutes(9);
        QCOMPARE(desk.fetches(), 1);
        desk.passMinutes(1);
        QCOMPARE(desk.fetches(), 2);
        desk.store.answer(QList{desk.event(u"Next"_s, 50)});
        QCOMPARE(desk.rows(), QStringList{u"Next 8:42 AM"_s});
        desk.passMinutes(79);
        QCOMPARE(desk.fetches(), 2);
        desk.passMinutes(1);
        QCOMPARE(desk.fetches(), 3);
    }

    void anEventThatStaysInTheAnswerIsNotFetchedForAgain()
    {
        EventsDesk desk;
        const QList events{desk.event(u"Now"_s, -20)};
        desk.fetch(events);
        desk.passMinutes(10);
        desk.store.answer(events); // by a calendar whose clock is slow
        desk.passMinutes(10);
        QCOMPARE(desk.fetches(), 2);
    }

    void aNewDayIsFetched()
    {
        EventsDesk desk;
        desk.setTime(QDateTime(QDate(2025, 10, 16), QTime(23, 55), QTimeZone("Europe/Berlin")));
        desk.fetch(QList<CalendarEvent>());
        desk.passMinutes(4);
        QCOMPARE(desk.fetches(), 1);
        desk.passMinutes(1);
        QCOMPARE(desk.fetches(), 2);
        desk.passMinutes(5);
        QCOMPARE(desk.fetches(), 2);
    }

    void aClockSetBackIsAReasonToFetch()
    {
        EventsDesk desk;
        desk.fetch(QList<CalendarEvent>());
        desk.clock.time -= 3600;
        desk.passMinutes(1);
        QCOMPARE(desk.fetches(), 2);
    }

    void theTimesFollowAChangeOfZone()
    {
        EventsDesk desk;
        desk.fetch(QList{desk.event(u"Tea"_s, 60)});
        const QSignalSpy changed(&desk.events, &UpcomingEvents::dataChanged);
        desk.clock.zone = QTimeZone("Europe/Berlin");
        desk.passMinutes(1);
        QCOMPARE(desk.fetches(), 2); // all-day events begin at another moment
        QCOMPARE(desk.store.windows.last().zone, desk.clock.zone);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(desk.rows(), QStringList{u"Tea 10:42 AM"_s});
    }

    void theSameAnswerLeavesTheRowsAlone()
    {
        EventsDesk desk;
        const QList events{desk.event(u"Tea"_s, 60)};
        desk.fetch(events);
        const QSignalSpy replaced(&desk.events, &UpcomingEvents::modelReset);
        desk.fetch(events);
        QCOMPARE(replaced.count(), 0);
    }

    void onlyTheLastFetchCounts()
    {
        EventsDesk desk;
        desk.events.fetchEvents();
        desk.events.fetchEvents();
        const QSignalSpy replaced(&desk.events, &UpcomingEvents::modelReset);
        desk.store.answer(QList{desk.event(u"Tea"_s, 60)});
        QCOMPARE(replaced.count(), 1);
    }
};

PELKO_TEST(TestUpcomingEvents)
#include "tst_UpcomingEvents.moc"
