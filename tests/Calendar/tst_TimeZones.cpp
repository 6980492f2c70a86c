#include "Calendar/CalendarFixture.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
/// Berlin as a VTIMEZONE under a name that is not in the tz database.
const QByteArray described = "BEGIN:VTIMEZONE\r\nTZID:Our Town\r\n"
                             "BEGIN:STANDARD\r\nDTSTART:19701025T030000\r\nTZOFFSETFROM:+0200\r\n"
                             "TZOFFSETTO:+0100\r\nRRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU\r\nEND:STANDARD\r\n"
                             "BEGIN:DAYLIGHT\r\nDTSTART:19700329T020000\r\nTZOFFSETFROM:+0100\r\n"
                             "TZOFFSETTO:+0200\r\nRRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU\r\nEND:DAYLIGHT\r\n"
                             "END:VTIMEZONE\r\n";

QByteArray zone(const QByteArray &name, const QByteArray &observances)
{
    return "BEGIN:VTIMEZONE\r\nTZID:" + name + "\r\n" + observances + "END:VTIMEZONE\r\n";
}

QByteArray at(const QByteArray &zone, const QByteArray &time)
{
    return eventText("SUMMARY:Tea\r\nDTSTART;TZID=" + zone + ":" + time);
}
} // namespace

/// The time zones that calendars use.
class TestTimeZones : public QObject
{
    Q_OBJECT

    CalendarFixture desk;

private Q_SLOTS:
    void init()
    {
        desk.zone = QTimeZone::utc();
        desk.look(QDate(2026, 11, 21), QDate(2026, 11, 22));
    }

    void aZoneIsKnownByItsName_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("told"); // of noon
        const auto row = [](const QByteArray &name, const QString &told) {
            QTest::newRow(name.left(60).constData()) << name << told;
        };
        row("Europe/Berlin", u"21 11:00 Tea"_s);
        row("America/New_York", u"21 17:00 Tea"_s);
        row("America/Argentina/Buenos_Aires", u"21 15:00 Tea"_s);
        row("Asia/Kolkata", u"21 06:30 Tea"_s);
        row("UTC", u"21 12:00 Tea"_s);
        row("Utc", u"21 12:00 Tea"_s);
        row("CET", u"21 11:00 Tea"_s);
        row("\"Europe/Berlin\"", u"21 11:00 Tea"_s);
        row("/somebody.org/2024_1/Europe/Berlin", u"21 11:00 Tea"_s);
        row("/somebody.org/America/Argentina/Buenos_Aires", u"21 15:00 Tea"_s);
        row("W. Europe Standard Time", u"21 11:00 Tea"_s);
        row("Eastern Standard Time", u"21 17:00 Tea"_s);
        row("India Standard Time", u"21 06:30 Tea"_s);
        row("Nowhere/Else", u"21 12:00 Tea"_s); // the user's zone
        row("../../../etc/localtime", u"21 12:00 Tea"_s);
        row("/etc/passwd", u"21 12:00 Tea"_s);
        row(QByteArray("a/").repeated(250'000), u"21 12:00 Tea"_s);
        row("", u"21 12:00 Tea"_s);
    }
    void aZoneIsKnownByItsName()
    {
        QFETCH(QByteArray, name);
        QFETCH(QString, told);
        QCOMPARE(desk.told(calendarText(at(name, "20261121T120000"))), QStringList{told});
    }

    void aTimeWithoutAZoneIsTheUsers()
    {
        desk.zone = QTimeZone("America/New_York");
        desk.look(QDate(2026, 11, 21), QDate(2026, 11, 22));
        QCOMPARE(desk.told(eventText("SUMMARY:Tea\r\nDTSTART:20261121T120000")),
                 QStringList{u"21 12:00 Tea"_s});
        QCOMPARE(desk.told(at("Nowhere/Else", "20261121T120000")), QStringList{u"21 12:00 Tea"_s});
    }

    void usesTheZoneThatTheCalendarDescribes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("told");
        const QByteArray tea = at("Our Town", "20261121T120000");
        QTest::newRow("before") << described + tea << QStringList{u"21 11:00 Tea"_s};
        QTest::newRow("after") << tea + described << QStringList{u"21 11:00 Tea"_s};
        QTest::newRow("nothing") << tea + zone("Our Town", "") << QStringList{u"21 12:00 Tea"_s};
        QTest::newRow("one offset")
            << tea + zone("Our Town", "BEGIN:STANDARD\r\nDTSTART:16010101T000000\r\nTZOFFSETFROM:+0530\r\n"
                                      "TZOFFSETTO:+0530\r\nEND:STANDARD\r\n")
            << QStringList{u"21 06:30 Tea"_s};
        QTest::newRow("dates")
            << tea + zone("Our Town", "BEGIN:STANDARD\r\nDTSTART:20001029T030000\r\nRDATE:20201101T000000\r\n"
                                      "TZOFFSETFROM:+0300\r\nTZOFFSETTO:+0200\r\nEND:STANDARD\r\n"
                                      "BEGIN:DAYLIGHT\r\nDTSTART:20100329T020000\r\nTZOFFSETFROM:+0200\r\n"
                                      "TZOFFSETTO:+0300\r\nEND:DAYLIGHT\r\n")
            << QStringList{u"21 10:00 Tea"_s};
        QTest::newRow("a summer that was abolished")
            << tea + zone("Our Town", "BEGIN:STANDARD\r\nDTSTART:19961027T030000\r\nTZOFFSETFROM:+0400\r\n"
                                      "TZOFFSETTO:+0300\r\nRRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU;"
                                      "UNTIL=20101031T000000Z\r\nEND:STANDARD\r\nBEGIN:DAYLIGHT\r\n"
                                      "DTSTART:19970330T020000\r\nTZOFFSETFROM:+0300\r\nTZOFFSETTO:+0400\r\n"
                                      "RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU;UNTIL=20100327T230000Z\r\n"
                                      "END:DAYLIGHT\r\n")
            << QStringList{u"21 09:00 Tea"_s};
        QTest::newRow("before its first")
            << tea + zone("Our Town", "BEGIN:STANDARD\r\nDTSTART:20301029T030000\r\nTZOFFSETFROM:+0300\r\n"
                                      "TZOFFSETTO:+0200\r\nEND:STANDARD\r\n")
            << QStringList{u"21 09:00 Tea"_s};
        QTest::newRow("a rule for every second")
            << tea + zone("Our Town", "BEGIN:STANDARD\r\nDTSTART:19961027T030000\r\nTZOFFSETFROM:+0100\r\n"
                                      "TZOFFSETTO:+0100\r\nRRULE:FREQ=SECONDLY\r\nEND:STANDARD\r\n")
            << QStringList{u"21 11:00 Tea"_s};
    }
    void usesTheZoneThatTheCalendarDescribes()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, told);
        QCOMPARE(desk.told(calendarText(text)), told);
    }

    void zonesOfOneTextAreNotThoseOfAnother()
    {
        CalendarContents contents(desk.window());
        contents.read(described + at("Our Town", "20261121T120000"));
        contents.read(at("Our Town", "20261121T130000"));
        QList<double> hours;
        for (const CalendarEvent &event : contents.events([] { return false; }))
            hours << (event.start - CalendarFixture::timestamp(desk.from)) / 3600;
        QCOMPARE(hours, (QList<double>{11, 13}));
    }

    void aSeriesKeepsItsTimeOfDayWhenClocksChange_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("the system's") << "Europe/Berlin"_ba;
        QTest::newRow("the calendar's") << "Our Town"_ba;
    }
    void aSeriesKeepsItsTimeOfDayWhenClocksChange()
    {
        QFETCH(QByteArray, name);
        const QByteArray text = described + eventText("SUMMARY:Tea\r\nDTSTART;TZID=" + name +
                                                      ":20260901T090000\r\nRRULE:FREQ=DAILY");
        desk.look(QDate(2026, 10, 24), QDate(2026, 10, 27));
        QCOMPARE(desk.told(text), (QStringList{u"24 07:00 Tea"_s, u"25 08:00 Tea"_s, u"26 08:00 Tea"_s}));
        desk.look(QDate(2027, 3, 27), QDate(2027, 3, 29));
        QCOMPARE(desk.told(text), (QStringList{u"27 08:00 Tea"_s, u"28 07:00 Tea"_s}));
    }

    void timesThatClocksLeaveOutOrShowTwice_data() { aSeriesKeepsItsTimeOfDayWhenClocksChange_data(); }
    void timesThatClocksLeaveOutOrShowTwice()
    {
        QFETCH(QByteArray, name);
        desk.look(QDate(2027, 3, 28), QDate(2027, 3, 29));
        QCOMPARE(desk.told(described + at(name, "20270328T023000")), QStringList{u"28 01:30 Tea"_s});
        desk.look(QDate(2026, 10, 25), QDate(2026, 10, 26));
        QCOMPARE(desk.told(described + at(name, "20261025T023000")), QStringList{u"25 00:30 Tea"_s});
    }

    void aDayIsAsLongAsClocksMakeIt()
    {
        desk.zone = QTimeZone("Europe/Berlin");
        const QByteArray day = eventText("SUMMARY:Fair\r\nDTSTART;VALUE=DATE:20261025");
        desk.from = QDateTime(QDate(2026, 10, 25), QTime(22, 30), QTimeZone::utc());
        desk.to = desk.from.addSecs(60);
        QCOMPARE(desk.told(day), QStringList{u"25 00:00 Fair"_s});
        desk.from = desk.to = QDateTime(QDate(2026, 10, 25), QTime(23, 0), QTimeZone::utc());
        desk.to = desk.from.addSecs(60);
        QCOMPARE(desk.told(day), QStringList());
        const QByteArray night = eventText("SUMMARY:Night\r\nDTSTART;TZID=Europe/Berlin:20261024T220000\r\n"
                                           "DURATION:P1D");
        desk.from = QDateTime(QDate(2026, 10, 25), QTime(20, 59), QTimeZone::utc()); // 21:59 in Berlin
        desk.to = desk.from.addSecs(600);
        QCOMPARE(desk.told(night), QStringList{u"24 22:00 Night"_s});
        desk.from = desk.from.addSecs(60);
        QCOMPARE(desk.told(night), QStringList());
    }

    void anEventMayEndInAnotherZone()
    {
        const QByteArray flight = eventText("SUMMARY:Flight\r\nDTSTART;TZID=Europe/Berlin:20261120T230000\r\n"
                                            "DTEND;TZID=America/New_York:20261121T010000");
        desk.from = QDateTime(QDate(2026, 11, 21), QTime(5, 59), QTimeZone::utc());
        QCOMPARE(desk.told(flight), QStringList{u"20 22:00 Flight"_s});
        desk.from = desk.from.addSecs(60);
        QCOMPARE(desk.told(flight), QStringList());
    }

    void anEventMayEndInAZoneThatIsDescribedLater()
    {
        const QByteArray trip = eventText("SUMMARY:Trip\r\nDTSTART:20261120T220000Z\r\n"
                                          "DTEND;TZID=Our Town:20261121T070000");
        desk.from = QDateTime(QDate(2026, 11, 21), QTime(5, 59), QTimeZone::utc());
        QCOMPARE(desk.told(trip + described), QStringList{u"20 22:00 Trip"_s});
        desk.from = desk.from.addSecs(60);
        QCOMPARE(desk.told(trip + described), QStringList());
    }

    void searchesOnceForAnOnsetThatNeverOccurs()
    {
        QByteArray text =
            zone("Our Town", "BEGIN:STANDARD\r\nDTSTART:19961027T030000\r\nTZOFFSETFROM:+0200\r\n"
                             "TZOFFSETTO:+0100\r\nRRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-9SU\r\n"
                             "END:STANDARD\r\n");
        for (int index = 0; index < 10'000; ++index)
            text += at("Our Town", "20261121T120000");
        QCOMPARE(desk.told(text), QStringList(10'000, u"21 11:00 Tea"_s));
    }

    void aThousandUnknownZonesAreEnough()
    {
        QByteArray text;
        for (int index = 0; index < 50'000; ++index)
            text += at("Nowhere/" + QByteArray::number(index), "20200101T120000");
        text += at("UTC", "20261121T120000");
        QCOMPARE(desk.told(text), QStringList{u"21 12:00 Tea"_s});
    }
};

PELKO_TEST(TestTimeZones)
#include "tst_TimeZones.moc"
