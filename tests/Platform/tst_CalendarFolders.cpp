#include "Platform/Calendar/KhalConfiguration.h"
#include "Platform/CalendarFetch.h"
#include "support/TestProgram.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace
{
QByteArray at(const QByteArray &title, const QByteArray &hour)
{
    return calendarText(
        eventText("UID:" + title + "\r\nSUMMARY:" + title + "\r\nDTSTART:20261121T" + hour + "0000Z"));
}
} // namespace

/// Calendars that are folders with one file per event.
class TestCalendarFolders : public QObject
{
    Q_OBJECT

    std::unique_ptr<CalendarHome> home;

    QString fetch() const
    {
        DesktopCalendarStore store(QDBusConnection(u"none"_s), home->folders());
        return fetched(store);
    }

private Q_SLOTS:
    void init() { home = std::make_unique<CalendarHome>(); }

    void withoutAnyFolderThereIsNoAccess() { QCOMPARE(fetch(), u"-"_s); }

    void anEmptyFolderHasNoEvents()
    {
        fs::create_directories(home->path("home/.calendars"));
        QCOMPARE(fetch(), u""_s);
    }

    void theUsualFoldersAreRead()
    {
        home->put(".calendars/work/b.ics", at("Tea", "10"));
        home->put(".calendars/work/a.ics", at("Milk", "11"));
        home->put(".local/share/khal/calendars/private/c.ics", at("Bread", "12"));
        QCOMPARE(fetch(), u"Milk Tea Bread"_s);
    }

    void theFoldersThatKhalKnowsAreRead()
    {
        home->put(
            ".config/khal/config",
            "[calendars]\n  [[one]]\n    path = ~/cloud/one/ # mine\n    color = dark green\n"
            "[[more]]\npath = \"$HOME/cloud/more/*\"\ntype = discover\n[locale]\npath = ~/cloud/other\n");
        home->put("cloud/one/a.ics", at("Tea", "10"));
        home->put("cloud/more/x/a.ics", at("Milk", "10"));
        home->put("cloud/more/y/a.ics", at("Bread", "10"));
        home->put("cloud/other/a.ics", at("Salt", "10"));
        QCOMPARE(fetch(), u"Tea Milk Bread"_s);
    }

    void aConfigurationSaysWhereCalendarsAre_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("paths");
        QTest::newRow("empty") << ""_ba << u""_s;
        QTest::newRow("no section") << "path = /a"_ba << u""_s;
        QTest::newRow("plain") << "[calendars]\n[[a]]\npath=/a\n[[b]]\npath = /b c/"_ba << u"/a|/b c/"_s;
        QTest::newRow("quoted") << "[calendars]\npath = '/a # b'"_ba << u"/a # b"_s;
        QTest::newRow("quotes that do not end") << "[calendars]\npath = '/a"_ba << u"/a"_s;
        QTest::newRow("relative") << "[calendars]\npath = a\npath ="_ba << u""_s;
        QTest::newRow("another section") << "[calendars]\n[default]\npath=/a"_ba << u""_s;
        QTest::newRow("home") << "[calendars]\npath=~/a\npath=$HOME/b\npath=${HOME}/c"_ba
                              << u"/h/a|/h/b|/h/c"_s;
        QTest::newRow("bytes") << QByteArray("[calendars]\npath\0=/a\n\xff=", 23) << u""_s;
    }
    void aConfigurationSaysWhereCalendarsAre()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, paths);
        QStringList found;
        for (const fs::path &path : khalCalendars(text, "/h"))
            found << QString::fromStdString(path.string());
        QCOMPARE(found.join(u'|'), paths);
    }

    void noFolderIsReadTwice()
    {
        home->put(".config/khal/config", "[calendars]\n[[a]]\npath=~/.calendars/a\n[[b]]\npath=~/link");
        home->put(".calendars/a/a.ics", at("Tea", "10"));
        fs::create_directory_symlink(home->path("home/.calendars"), home->path("home/.calendars/a/again"));
        fs::create_directory_symlink(home->path("home/.calendars/a"), home->path("home/link"));
        QCOMPARE(fetch(), u"Tea"_s);
    }

    void onlyCalendarFilesAreRead()
    {
        home->put(".calendars/a.ics", at("Tea", "10"));
        home->put(".calendars/.b.ics", at("Half", "10"));
        home->put(".calendars/c.ics.tmp", at("Half", "10"));
        home->put(".calendars/d.vcf", "BEGIN:VCARD\r\nEND:VCARD\r\n");
        home->put(".calendars/1/2/3/e.ics", at("Deep", "10"));
        home->put(".calendars/1/2/3/4/f.ics", at("Deeper", "10"));
        fs::create_directories(home->path("home/.calendars/g.ics/x"));
        QCOMPARE(::mkfifo(home->path("home/.calendars/h.ics").c_str(), 0600), 0);
        fs::create_symlink("/dev/zero", home->path("home/.calendars/i.ics"));
        fs::create_symlink("nowhere", home->path("home/.calendars/j.ics"));
        fs::create_symlink("a.ics", home->path("home/.calendars/k.ics"));
        QCOMPARE(fetch(), u"Tea Deep"_s);
    }

    void readsValidFilesOfBrokenFolders()
    {
        home->put(".calendars/a.ics", at("Tea", "10"));
        home->put(".calendars/empty.ics", "");
        home->put(".calendars/cut.ics", at("Cut", "10").chopped(25));
        home->put(".calendars/bytes.ics", QByteArray(100'000, '\xFF'));
        home->put(".calendars/latin.ics", at("Caf\xE9", "10"));
        home->put(".calendars/deep.ics", QByteArray("BEGIN:VEVENT\n").repeated(200'000));
        home->put(".calendars/rule.ics",
                  at("Rule", "10").replace("DTSTART", "RRULE:FREQ=MONTHLY;BYDAY=6MO\r\nDTSTART"));
        home->put(".calendars/large.ics", at("Large", "10"));
        fs::resize_file(home->path("home/.calendars/large.ics"), 100'000'000);
        home->put(".calendars/z.ics", at("Last", "10"));
        QCOMPARE(fetch(), u"Tea Café Last Rule"_s);
    }

    void anEventAndItsChangesMayLieInFilesOfTheirOwn()
    {
        home->put(".calendars/a/change.ics",
                  calendarText(eventText("UID:t\r\nSUMMARY:Late\r\nRECURRENCE-ID:20261121T100000Z\r\n"
                                         "DTSTART:20261121T120000Z")));
        home->put(
            ".calendars/a/t.ics",
            calendarText(eventText("UID:t\r\nSUMMARY:Tea\r\nDTSTART:20261101T100000Z\r\nRRULE:FREQ=DAILY")));
        home->put(".calendars/b/t.ics",
                  calendarText(eventText("UID:t\r\nSUMMARY:Other\r\nDTSTART:20261121T100000Z")));
        QCOMPARE(fetch(), u"Late Other"_s);
    }

    void rulesThatRunOnAreCutShort()
    {
        for (int index = 0; index < 40; ++index)
            home->put(
                qPrintable(u".calendars/%1.ics"_s.arg(index)),
                calendarText(eventText("UID:" + QByteArray::number(index) +
                                       "\r\nSUMMARY:All\r\nDTSTART:20200101T100000Z\r\nDURATION:P36500D\r\n"
                                       "RRULE:FREQ=MINUTELY;BYDAY=MO;COUNT=2000000000")));
        home->put(".calendars/a.ics", at("Tea", "10"));
        DesktopCalendarStore store(QDBusConnection(u"none"_s), home->folders(), std::chrono::seconds(1));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(fetched(store).startsWith(u"Tea"_s));
        QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
    }

    void whoHasGoneIsNotAnswered()
    {
        home->put(".calendars/a.ics", at("Tea", "10"));
        DesktopCalendarStore store(QDBusConnection(u"none"_s), home->folders());
        bool isAnswered = false;
        store.fetch({}, [&isAnswered](const auto &) { isAnswered = true; }).cancel();
        QCOMPARE(fetched(store), u"Tea"_s); // comes after it
        QVERIFY(!isAnswered);
    }

    void theAnswerComesOnTheInterfaceThreadAndLater()
    {
        DesktopCalendarStore store(QDBusConnection(u"none"_s), home->folders());
        QThread *thread = nullptr;
        const auto request = store.fetch({}, [&thread](const auto &) { thread = QThread::currentThread(); });
        QTest::qSleep(50);
        QCOMPARE(thread, nullptr);
        QTRY_COMPARE(thread, QThread::currentThread());
    }
};

PELKO_TEST(TestCalendarFolders)
#include "tst_CalendarFolders.moc"
