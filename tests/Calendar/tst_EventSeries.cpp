#include "Calendar/CalendarFixture.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace
{
/// Breakfast at nine in Berlin, daily from Monday, 16 November.
const QByteArray breakfast = "UID:b\r\nSUMMARY:Breakfast\r\nDTSTART;TZID=Europe/Berlin:20261116T090000\r\n"
                             "DTEND;TZID=Europe/Berlin:20261116T093000\r\nRRULE:FREQ=DAILY";

QByteArray changed(const QByteArray &lines)
{
    return eventText("UID:b\r\n" + lines);
}
} // namespace

/// Recurring events with moved, changed and cancelled occurrences.
class TestEventSeries : public QObject
{
    Q_OBJECT

    CalendarFixture desk;

private Q_SLOTS:
    void init()
    {
        desk.zone = QTimeZone("Europe/Berlin");
        desk.look(QDate(2026, 11, 21), QDate(2026, 11, 23));
    }

    void seriesCombinesItsEntries_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("told");

        const auto row = [](const char *name, const QByteArray &text, const QStringList &told) {
            QTest::newRow(name) << text << told;
        };
        const QByteArray every = eventText(breakfast);
        const QString first = u"21 09:00 Breakfast"_s;
        const QString second = u"22 09:00 Breakfast"_s;

        row("every day", every, {first, second});
        row("left out", eventText(breakfast + "\r\nEXDATE;TZID=Europe/Berlin:20261121T090000"), {second});
        row("left out in the world's time", eventText(breakfast + "\r\nEXDATE:20261121T080000Z"), {second});
        row("left out as days", eventText(breakfast + "\r\nEXDATE;VALUE=DATE:20261120,20261121"), {second});
        row("two left out in one line", eventText(breakfast + "\r\nEXDATE:20261121T080000Z,20261122T080000Z"),
            {});
        row("another time left out", eventText(breakfast + "\r\nEXDATE:20261121T090000Z"), {first, second});
        row("nonsense left out", eventText(breakfast + "\r\nEXDATE:tomorrow"), {first, second});
        row("a rule that is none", eventText(breakfast + "X"), {});
        row("two rules", eventText(breakfast + "\r\nRRULE:FREQ=DAILY;BYHOUR=20"),
            {first, u"21 20:00 Breakfast"_s, second, u"22 20:00 Breakfast"_s});
        row("the same rule twice", eventText(breakfast + "\r\nRRULE:FREQ=DAILY"), {first, second});
        row("the same entry twice", every + every, {first, second});

        row("moved within",
            every + changed("SUMMARY:Brunch\r\nRECURRENCE-ID:20261121T080000Z\r\nDTSTART:20261121T100000Z"),
            {u"21 11:00 Brunch"_s, second});
        row("moved by its local time",
            every + changed("RECURRENCE-ID;TZID=Europe/Berlin:20261121T090000\r\nDTSTART:20261121T100000Z"),
            {u"21 11:00 -"_s, second});
        row("moved by its day",
            every + changed("RECURRENCE-ID;VALUE=DATE:20261121\r\nDTSTART:20261121T100000Z"),
            {u"21 11:00 -"_s, second});
        row("moved out", every + changed("RECURRENCE-ID:20261121T080000Z\r\nDTSTART:20261125T100000Z"),
            {second});
        row("moved in",
            every + changed("SUMMARY:Late\r\nRECURRENCE-ID:20261118T080000Z\r\nDTSTART:20261121T100000Z"),
            {first, u"21 11:00 Late"_s, second});
        row("written before its series",
            changed("RECURRENCE-ID:20261121T080000Z\r\nDTSTART:20261125T100000Z") + every, {second});
        row("changed without its series",
            changed("SUMMARY:Guest\r\nRECURRENCE-ID:20261121T080000Z\r\nDTSTART:20261121T080000Z"),
            {u"21 09:00 Guest"_s});
        row("one cancelled",
            every + changed("STATUS:CANCELLED\r\nRECURRENCE-ID:20261121T080000Z\r\nDTSTART:20261121T080000Z"),
            {second});
        row("all cancelled",
            eventText(breakfast + "\r\nSTATUS:CANCELLED") +
                changed("RECURRENCE-ID:20261121T080000Z\r\nDTSTART:20261121T100000Z"),
            {});
        row("changed and left out",
            eventText(breakfast + "\r\nEXDATE:20261121T080000Z") +
                changed("SUMMARY:Brunch\r\nRECURRENCE-ID:20261121T080000Z\r\nDTSTART:20261121T100000Z"),
            {u"21 11:00 Brunch"_s, second});
    }
    void seriesCombinesItsEntries()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, told);
        QCOMPARE(desk.told(calendarText(text)), told);
    }

    void laterOnesAreChangedTogether_data()
    {
        QTest::addColumn<QByteArray>("changes");
        QTest::addColumn<QStringList>("told");

        const auto row = [](const char *name, const QByteArray &changes, const QStringList &told) {
            QTest::newRow(name) << changes << told;
        };
        const QByteArray fromTheEighteenth = "RECURRENCE-ID;RANGE=THISANDFUTURE:20261118T080000Z\r\n";
        row("later", changed("SUMMARY:Late\r\n" + fromTheEighteenth + "DTSTART:20261118T090000Z"),
            {u"21 10:00 Late"_s, u"22 10:00 Late"_s});
        row("by a day", changed("SUMMARY:Late\r\n" + fromTheEighteenth + "DTSTART:20261119T080000Z"),
            {u"21 09:00 Late"_s, u"22 09:00 Late"_s});
        row("from the second on",
            changed("SUMMARY:Late\r\nRECURRENCE-ID;RANGE=THISANDFUTURE:20261122T080000Z\r\nDTSTART:"
                    "20261122T090000Z"),
            {u"21 09:00 Breakfast"_s, u"22 10:00 Late"_s});
        row("after the window",
            changed("SUMMARY:Late\r\nRECURRENCE-ID;RANGE=THISANDFUTURE:20261123T080000Z\r\nDTSTART:"
                    "20261123T090000Z"),
            {u"21 09:00 Breakfast"_s, u"22 09:00 Breakfast"_s});
        row("and one of them again",
            changed("SUMMARY:Late\r\n" + fromTheEighteenth + "DTSTART:20261118T090000Z") +
                changed("SUMMARY:Early\r\nRECURRENCE-ID:20261121T080000Z\r\nDTSTART:20261121T060000Z"),
            {u"21 07:00 Early"_s, u"22 10:00 Late"_s});
        row("and once more",
            changed("SUMMARY:Late\r\n" + fromTheEighteenth + "DTSTART:20261118T090000Z") +
                changed("SUMMARY:Later\r\nRECURRENCE-ID;RANGE=THISANDFUTURE:20261122T080000Z\r\nDTSTART:"
                        "20261122T100000Z"),
            {u"21 10:00 Late"_s, u"22 11:00 Later"_s});
        row("cancelled", changed(fromTheEighteenth + "DTSTART:20261118T080000Z\r\nSTATUS:CANCELLED"), {});
        row("longer",
            changed("SUMMARY:Long\r\n" + fromTheEighteenth + "DTSTART:20261118T080000Z\r\nDURATION:PT20H"),
            {u"20 09:00 Long"_s, u"21 09:00 Long"_s, u"22 09:00 Long"_s});
    }
    void laterOnesAreChangedTogether()
    {
        QFETCH(QByteArray, changes);
        QFETCH(QStringList, told);
        QCOMPARE(desk.told(calendarText(eventText(breakfast) + changes)), told);
    }

    void aSeriesThatWasMovedByAThousandYearsIsNotLookedFor()
    {
        const QByteArray text =
            eventText(breakfast) + changed("RECURRENCE-ID;RANGE=THISANDFUTURE:30261122T080000Z\r\n"
                                           "DTSTART:20261122T090000Z");
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(desk.told(text).size(), 3);
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }

    void furtherDatesAreAdded_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QStringList>("told");
        QTest::newRow("a time") << "RDATE:20261121T120000Z"_ba << QStringList{u"21 13:00 Tea"_s};
        QTest::newRow("two") << "RDATE;TZID=Europe/Berlin:20261121T130000,20261122T130000"_ba
                             << QStringList{u"21 13:00 Tea"_s, u"22 13:00 Tea"_s};
        QTest::newRow("a period with its end")
            << "RDATE;VALUE=PERIOD:20261120T200000Z/20261121T000000Z"_ba << QStringList{u"20 21:00 Tea"_s};
        QTest::newRow("a period with its length")
            << "RDATE;VALUE=PERIOD:20261120T200000Z/PT4H"_ba << QStringList{u"20 21:00 Tea"_s};
        QTest::newRow("a period that is over")
            << "RDATE;VALUE=PERIOD:20261120T200000Z/PT3H"_ba << QStringList();
        QTest::newRow("in the rule as well") << "RRULE:FREQ=DAILY;COUNT=7\r\nRDATE:20261121T120000Z"_ba
                                             << QStringList{u"21 13:00 Tea"_s, u"22 13:00 Tea"_s};
        QTest::newRow("and left out")
            << "RDATE:20261121T120000Z\r\nEXDATE:20261121T120000Z"_ba << QStringList();
        QTest::newRow("nonsense") << "RDATE;VALUE=PERIOD:/,,T/P,2026"_ba << QStringList();
    }
    void furtherDatesAreAdded()
    {
        QFETCH(QByteArray, line);
        QFETCH(QStringList, told);
        QCOMPARE(
            desk.told(eventText(
                "UID:t\r\nSUMMARY:Tea\r\nDTSTART:20261116T120000Z\r\nDTEND:20261116T123000Z\r\n" + line)),
            told);
    }

    void theFirstTimeCountsEvenAgainstTheRule()
    {
        desk.look(QDate(2026, 11, 16), QDate(2026, 11, 25));
        QCOMPARE(
            desk.told(eventText("SUMMARY:Tea\r\nDTSTART:20261116T120000Z\r\nRRULE:FREQ=WEEKLY;BYDAY=WE")),
            (QStringList{u"16 13:00 Tea"_s, u"18 13:00 Tea"_s}));
    }

    void anOccurrenceThatBeganBeforeIsStillInProgress()
    {
        desk.from = QDateTime(QDate(2026, 11, 21), QTime(9, 15), desk.zone);
        desk.to = desk.from.addDays(1);
        QCOMPARE(desk.told(eventText(breakfast)),
                 (QStringList{u"21 09:00 Breakfast"_s, u"22 09:00 Breakfast"_s}));
        desk.from = QDateTime(QDate(2026, 11, 21), QTime(9, 30), desk.zone);
        desk.to = desk.from.addDays(1);
        QCOMPARE(desk.told(eventText(breakfast)), QStringList{u"22 09:00 Breakfast"_s});
    }

    void daysAreThoseOfTheUser()
    {
        const QByteArray text =
            eventText("SUMMARY:Fair\r\nDTSTART;VALUE=DATE:20261102\r\nRRULE:FREQ=WEEKLY;BYDAY=SA") +
            eventText("SUMMARY:Trip\r\nDTSTART;VALUE=DATE:20261120\r\nDTEND;VALUE=DATE:20261122");
        for (const char *zone : {"Europe/Berlin", "America/Los_Angeles", "Pacific/Kiritimati", "UTC"}) {
            desk.zone = QTimeZone(zone);
            desk.look(QDate(2026, 11, 21), QDate(2026, 11, 22));
            QCOMPARE(desk.told(text), (QStringList{u"20 00:00 Trip"_s, u"21 00:00 Fair"_s}));
            desk.look(QDate(2026, 11, 22), QDate(2026, 11, 23));
            QCOMPARE(desk.told(text), QStringList());
        }
    }

    void aWholeDayMayBeLeftOut()
    {
        const QByteArray fair = "SUMMARY:Fair\r\nDTSTART;VALUE=DATE:20261120\r\nRRULE:FREQ=DAILY";
        QCOMPARE(desk.told(eventText(fair + "\r\nEXDATE;VALUE=DATE:20261121")),
                 QStringList{u"22 00:00 Fair"_s});
        QCOMPARE(desk.told(eventText(fair + "\r\nEXDATE:20261120T230000Z")), QStringList{u"22 00:00 Fair"_s});
        QCOMPARE(desk.told(eventText(fair + ";UNTIL=20261120T230000Z")), QStringList{u"21 00:00 Fair"_s});
    }

    void everyOccurrenceHasAnIdentityOfItsOwn()
    {
        const auto events = desk.events(eventText(breakfast));
        QCOMPARE(events.size(), 2);
        QVERIFY(events[0].identifier && events[1].identifier);
        QVERIFY(events[0].identifier != events[1].identifier);
        desk.from = desk.from.addSecs(60);
        QCOMPARE(desk.events(eventText(breakfast)).first().identifier, events.first().identifier);
    }
};

PELKO_TEST(TestEventSeries)
#include "tst_EventSeries.moc"
