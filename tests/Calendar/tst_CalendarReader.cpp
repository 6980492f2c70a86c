#include "Calendar/CalendarFixture.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

/// The events that one text contains, and malformed texts.
class TestCalendarReader : public QObject
{
    Q_OBJECT

    CalendarFixture desk;

private Q_SLOTS:
    void readsTheLinesOfAnEvent_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QStringList>("told");

        const QByteArray ten = "DTSTART:20261121T100000Z\r\n";
        const auto row = [](const char *name, const QByteArray &lines, const QStringList &told) {
            QTest::newRow(name) << lines << told;
        };
        row("title", ten + "SUMMARY:Tea", {u"21 10:00 Tea"_s});
        row("no title", ten + "UID:1", {u"21 10:00 -"_s});
        row("blank title", ten + "SUMMARY:  ", {u"21 10:00 -"_s});
        row("escapes", ten + "SUMMARY:Tea\\, milk\\; \\\\ and\\nbread",
            {u"21 10:00 Tea, milk; \\ and bread"_s});
        row("parameters", ten + "SUMMARY;LANGUAGE=en;ALTREP=\"http://a:b;c\":Tea: two",
            {u"21 10:00 Tea: two"_s});
        row("folded", ten + "SUM\r\n MARY:Te\r\n\ta", {u"21 10:00 Tea"_s});
        row("small letters", "dtstart:20261121T100000Z\r\nsummary:Tea", {u"21 10:00 Tea"_s});
        row("UTF-8", ten + "SUMMARY:Caf\xC3\xA9", {u"21 10:00 Café"_s});
        row("UTF-8 split by a fold", ten + "SUMMARY:Caf\xC3\r\n \xA9", {u"21 10:00 Café"_s});
        row("Latin-1", ten + "SUMMARY:Caf\xE9", {u"21 10:00 Café"_s});
        row("no start", "SUMMARY:Tea", {});
        row("start that is none", "DTSTART:20261341T100000Z\r\nSUMMARY:Tea", {});
        row("start in short", "DTSTART:2026\r\nSUMMARY:Tea", {});
        row("cancelled", ten + "STATUS:CANCELLED", {});
        row("tentative", ten + "STATUS:TENTATIVE", {u"21 10:00 -"_s});
        row("alarm inside", ten + "BEGIN:VALARM\r\nSUMMARY:Wake\r\nEND:VALARM\r\nSUMMARY:Tea",
            {u"21 10:00 Tea"_s});
        row("colon missing", ten + "SUMMARY", {u"21 10:00 -"_s});
    }
    void readsTheLinesOfAnEvent()
    {
        QFETCH(QByteArray, lines);
        QFETCH(QStringList, told);
        QCOMPARE(desk.told(calendarText(eventText(lines))), told);
        QCOMPARE(desk.told(calendarText(eventText(lines)).replace("\r\n", "\n")), told);
        QCOMPARE(desk.told(eventText(lines)), told);
    }

    void anEventOverlapsTheWindowOrNot_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<bool>("isIn");

        // The window goes from nine o'clock to nine o'clock.
        QTest::newRow("in progress") << "DTSTART:20261121T080000Z\r\nDTEND:20261121T100000Z"_ba << true;
        QTest::newRow("over at the beginning")
            << "DTSTART:20261121T080000Z\r\nDTEND:20261121T090000Z"_ba << false;
        QTest::newRow("over a second later")
            << "DTSTART:20261121T080000Z\r\nDTEND:20261121T090001Z"_ba << true;
        QTest::newRow("23 hours ahead") << "DTSTART:20261122T080000Z\r\nDTEND:20261122T083000Z"_ba << true;
        QTest::newRow("25 hours ahead") << "DTSTART:20261122T100000Z\r\nDTEND:20261122T103000Z"_ba << false;
        QTest::newRow("at the end") << "DTSTART:20261122T090000Z\r\nDTEND:20261122T100000Z"_ba << false;
        QTest::newRow("a second before") << "DTSTART:20261122T085959Z\r\nDTEND:20261122T100000Z"_ba << true;
        QTest::newRow("no end, at the beginning") << "DTSTART:20261121T090000Z"_ba << true;
        QTest::newRow("no end, before") << "DTSTART:20261121T085959Z"_ba << false;
        QTest::newRow("ends before it starts")
            << "DTSTART:20261121T100000Z\r\nDTEND:20261121T080000Z"_ba << true;
        QTest::newRow("lasts") << "DTSTART:20261121T080000Z\r\nDURATION:PT1H1S"_ba << true;
        QTest::newRow("has lasted") << "DTSTART:20261121T080000Z\r\nDURATION:PT1H"_ba << false;
        QTest::newRow("lasts weeks") << "DTSTART:20261101T080000Z\r\nDURATION:P3W"_ba << true;
        QTest::newRow("lasts less than nothing") << "DTSTART:20261121T080000Z\r\nDURATION:-P1D"_ba << false;
        QTest::newRow("lasts for ever") << "DTSTART:20261101T080000Z\r\nDURATION:P99999999999999D"_ba << true;
        QTest::newRow("span without a unit") << "DTSTART:20261121T080000Z\r\nDURATION:P9X"_ba << false;
        QTest::newRow("today") << "DTSTART;VALUE=DATE:20261121"_ba << true;
        QTest::newRow("yesterday") << "DTSTART;VALUE=DATE:20261120"_ba << false;
        QTest::newRow("to yesterday")
            << "DTSTART;VALUE=DATE:20261119\r\nDTEND;VALUE=DATE:20261121"_ba << false;
        QTest::newRow("to today") << "DTSTART;VALUE=DATE:20261119\r\nDTEND;VALUE=DATE:20261122"_ba << true;
        QTest::newRow("tomorrow") << "DTSTART;VALUE=DATE:20261122"_ba << true;
        QTest::newRow("the day after") << "DTSTART;VALUE=DATE:20261123"_ba << false;
        QTest::newRow("a day that ends when it starts")
            << "DTSTART;VALUE=DATE:20261121\r\nDTEND;VALUE=DATE:20261121"_ba << true;
    }
    void anEventOverlapsTheWindowOrNot()
    {
        QFETCH(QByteArray, lines);
        QFETCH(bool, isIn);
        QCOMPARE(desk.events(calendarText(eventText(lines))).size(), isIn ? 1 : 0);
    }

    void theEventsAreTakenInTheirOrder()
    {
        const QByteArray text = calendarText(eventText("SUMMARY:Late\r\nDTSTART:20261121T200000Z") +
                                             eventText("SUMMARY:One\r\nUID:1\r\nDTSTART:20261121T100000Z\r\n"
                                                       "DURATION:PT1H") +
                                             eventText("SUMMARY:Other\r\nUID:2\r\nDTSTART:20261121T100000Z"));
        const Timestamp ten =
            CalendarFixture::timestamp(QDateTime(QDate(2026, 11, 21), QTime(10, 0), QTimeZone::utc()));
        const QList<CalendarEvent> expected{
            {.title = u"Late"_s, .start = ten + 36000, .end = ten + 36000},
            {.title = u"One"_s, .start = ten, .end = ten + 3600, .identifier = u"1"_s},
            {.title = u"Other"_s, .start = ten, .end = ten, .identifier = u"2"_s}};
        QCOMPARE(desk.events(text), expected);
    }

    void onlyEventsAreRead()
    {
        const QByteArray ten = "DTSTART:20261121T100000Z\r\nSUMMARY:Other\r\n";
        QCOMPARE(desk.told(calendarText("BEGIN:VTODO\r\n" + ten + "END:VTODO\r\nBEGIN:VJOURNAL\r\n" + ten +
                                        "END:VJOURNAL\r\nBEGIN:VFREEBUSY\r\n" + ten + "END:VFREEBUSY\r\n" +
                                        eventText(ten + "SUMMARY:Tea"))),
                 QStringList{u"21 10:00 Tea"_s});
    }

    void readsValidEventsOfABrokenText_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("told");

        const QByteArray tea = eventText("SUMMARY:Tea\r\nDTSTART:20261121T100000Z");
        const QByteArray milk = eventText("SUMMARY:Milk\r\nDTSTART:20261121T110000Z");
        const QStringList both{u"21 10:00 Tea"_s, u"21 11:00 Milk"_s};
        const QStringList one = both.first(1);
        QByteArray bytes;
        for (int index = 0; index < 65536; ++index)
            bytes.append(char(index * 7919 >> 5));

        QTest::newRow("nothing") << ""_ba << QStringList();
        QTest::newRow("one byte") << "B"_ba << QStringList();
        QTest::newRow("bytes") << bytes << QStringList();
        QTest::newRow("zeros") << QByteArray(100'000, '\0') << QStringList();
        QTest::newRow("bytes between") << tea + bytes + "\r\n" + milk << both;
        QTest::newRow("a mark before") << "\xEF\xBB\xBF" + tea << one;
        QTest::newRow("cut off") << tea + milk.chopped(5) << one;
        QTest::newRow("no end between") << tea + milk.first(40) + "\r\n" + milk << both;
        QTest::newRow("ends without a beginning") << "END:VEVENT\r\nEND:VCALENDAR\r\n" + tea << one;
        QTest::newRow("zeros in the title")
            << "BEGIN:VEVENT\nDTSTART:20261121T100000Z\nSUMMARY:Te\0a\nEND:VEVENT"_ba << QStringList();
        QTest::newRow("deep") << QByteArray("BEGIN:VCALENDAR\n").repeated(200'000) + tea << one;
        QTest::newRow("deep in an event")
            << "BEGIN:VEVENT\n" + QByteArray("BEGIN:X\n").repeated(200'000) + tea << one;
        QTest::newRow("deep zones") << QByteArray("BEGIN:VTIMEZONE\n").repeated(200'000) + tea << one;
        QTest::newRow("a long line") << "X-ALL:" + QByteArray(3'000'000, 'a') + "\n" + tea +
                                            "X:" + QByteArray(3'000'000, ';')
                                     << one;
        QTest::newRow("a long title")
            << eventText("DTSTART:20261121T100000Z\r\nSUMMARY:" + QByteArray(2'000'000, 'a'))
            << QStringList{u"21 10:00 -"_s};
        QTest::newRow("a picture, folded")
            << eventText("ATTACH:" + QByteArray("YWFh\r\n ").repeated(400'000) +
                         "\r\nSUMMARY:Tea\r\nDTSTART:20261121T100000Z")
            << one;
        QTest::newRow("quotes that do not end")
            << eventText("X;A=\"b:c\r\nDTSTART:20261121T100000Z\r\nSUMMARY:Tea") << one;
    }
    void readsValidEventsOfABrokenText()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, told);
        if (QByteArray(QTest::currentDataTag()) == "zeros in the title")
            QCOMPARE(desk.events(text).size(), 1);
        else
            QCOMPARE(desk.told(text), told);
    }

    void textsOfOneCalendarDoNotLeakIntoEachOther()
    {
        CalendarContents contents(desk.window());
        contents.read("BEGIN:VEVENT\r\nSUMMARY:Half");
        contents.read("DTSTART:20261121T100000Z\r\nEND:VEVENT\r\n" + eventText("DTSTART:20261121T110000Z"));
        const auto events = contents.events([] { return false; });
        QCOMPARE(events.size(), 1);
        QCOMPARE(events.first().title, std::nullopt);
    }

    void allIsGivenUpBetweenEvents()
    {
        CalendarContents contents(desk.window());
        contents.read(
            calendarText(eventText("DTSTART:20261121T100000Z") + eventText("DTSTART:20261121T110000Z")));
        int asked = 0;
        QCOMPARE(contents.events([&asked] { return ++asked > 1; }).size(), 1);
    }
};

PELKO_TEST(TestCalendarReader)
#include "tst_CalendarReader.moc"
