#include "Platform/CalendarFetch.h"
#include "Platform/FakeEvolution.h"
#include "Platform/PrivateBus.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
QString at(const char *title, const char *lines = "")
{
    return QString::fromUtf8(
        eventText("UID:"_ba + title + "\r\nSUMMARY:" + title + "\r\nDTSTART:20261121T100000Z\r\n" + lines));
}

/// Returns this number of daily events; no title is part of another.
QStringList daily(int count)
{
    QStringList events;
    for (int index = 0; index < count; ++index)
        events << at(("e" + QByteArray::number(index) + "e").constData(), "RRULE:FREQ=DAILY\r\n");
    return events;
}
} // namespace

/// A fake calendar server in many states.
class TestEvolutionCalendars : public QObject
{
    Q_OBJECT

    std::unique_ptr<CalendarHome> home;
    std::unique_ptr<PrivateBus> bus;
    std::unique_ptr<FakeEvolution> server;

    void startBus(const PrivateBus::Configuration &configuration = {})
    {
        server.reset();
        bus = std::make_unique<PrivateBus>(configuration);
    }
    void startServer() { server = std::make_unique<FakeEvolution>(bus->connection(u"server"_s)); }

    DesktopCalendarStore store(std::chrono::milliseconds fetchTimeout = 5s)
    {
        return {bus->connection(u"client"_s), home->folders(), fetchTimeout};
    }
    QString fetch(std::chrono::milliseconds fetchTimeout = 5s)
    {
        auto calendars = store(fetchTimeout);
        return fetched(calendars);
    }

private Q_SLOTS:
    void init()
    {
        home = std::make_unique<CalendarHome>();
        home->put(".calendars/a.ics", at("Folder").toUtf8());
        startBus();
    }
    void cleanup()
    {
        server.reset();
        bus.reset();
    }

    void allCalendarsInUseAreAsked()
    {
        startServer();
        server->addCalendar(u"one"_s, {at("Tea"), at("Milk")});
        server->addCalendar(u"two"_s, {at("Bread"), at("Past").replace(u"2026"_s, u"2025"_s)});
        server->addSource(u"local"_s, u"[Data Source]\nEnabled=true\n"_s);
        QCOMPARE(fetch(), u"Tea Milk Bread Folder"_s);
    }

    void disabledCalendarsAreNotAsked_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("off") << u"[Data Source]\nEnabled=false\n[Calendar]\n"_s;
        QTest::newRow("of an account that is off")
            << u"[Data Source]\nEnabled=true\nParent=account\n[Calendar]\n"_s;
        QTest::newRow("deep in an account that is off")
            << u"[Data Source]\nEnabled=true\nParent=middle\n[Calendar]\n"_s;
        QTest::newRow("no calendar") << u"[Data Source]\nEnabled=true\n[Task List]\n"_s;
        QTest::newRow("nothing") << u""_s;
    }
    void disabledCalendarsAreNotAsked()
    {
        QFETCH(QString, source);
        startServer();
        server->addSource(u"x"_s, source);
        server->addSource(u"middle"_s, u"[Data Source]\nEnabled=true\nParent=account\n"_s);
        server->addSource(u"account"_s, u"[Data Source]\nEnabled=false\n"_s);
        QCOMPARE(fetch(), u"Folder"_s);
        QCOMPARE(server->asked, QStringList{u"GetManagedObjects"_s});
    }

    void anAccountMayBelongToItself()
    {
        startServer();
        server->addSource(u"x"_s, u"[Data Source]\nEnabled=true\nParent=x\n[Calendar]\n"_s);
        fetch();
        QVERIFY(server->asked.contains(u"OpenCalendar"_s));
    }

    void anEmptyServerHidesNoFolders()
    {
        startServer();
        server->addCalendar(u"one"_s, {});
        QCOMPARE(fetch(), u"Folder"_s);
    }

    void aFolderThatMirrorsTheServerAddsNothing()
    {
        home->put(".calendars/b.ics", at("Tea").toUtf8()); // not moved yet
        startServer();
        server->addCalendar(u"one"_s, {at("Tea").replace(u"T10"_s, u"T15"_s)});
        QCOMPARE(fetch(), u"Tea Folder"_s);
    }

    void aMirroredSeriesIsToldOnce()
    {
        home->put(".calendars/b.ics", at("Tea", "RRULE:FREQ=DAILY\r\n").toUtf8());
        startServer();
        server->addCalendar(u"one"_s, {at("Tea", "RRULE:FREQ=DAILY\r\n")});
        QCOMPARE(fetch(), u"Tea Folder"_s);
    }

    void recurringEventsAreFetchedByUid()
    {
        startServer();
        server->addCalendar(u"one"_s, {at("Tea", "RRULE:FREQ=DAILY\r\n"), at("Milk")});
        server->answers[u"GetObject"_s] = [](const QDBusMessage &message) {
            return message.createReply(
                at("Tea", "RRULE:FREQ=DAILY\r\n") +
                at("Tea", "RECURRENCE-ID:20261121T100000Z\r\n").replace(u"MARY:Tea"_s, u"MARY:Late"_s));
        };
        QCOMPARE(fetch(), u"Milk Late Folder"_s);
        QCOMPARE(server->asked.count(u"GetObject"_s), 1);
    }

    void unknownZonesAreFetched()
    {
        startServer();
        server->addCalendar(u"one"_s,
                            {at("Tea").replace(u":20261121T100000Z"_s, u";TZID=Our Town:20261122T100000"_s)});
        server->answers[u"GetTimezone"_s] = [](const QDBusMessage &message) {
            return message.createReply(
                u"BEGIN:VTIMEZONE\nTZID:Our Town\nBEGIN:STANDARD\nDTSTART:19700101T000000\n"
                "TZOFFSETFROM:+0300\nTZOFFSETTO:+0300\nEND:STANDARD\nEND:VTIMEZONE\n"_s);
        };
        QCOMPARE(fetch(), u"Tea Folder"_s); // at ten it would be too late
    }

    void withoutABusFoldersAreRead()
    {
        bus->kill();
        QCOMPARE(fetch(), u"Folder"_s);
    }

    void withoutAServerFoldersAreRead() { QCOMPARE(fetch(), u"Folder"_s); }

    void aServerThatMayNotBeAskedCountsAsNone()
    {
        startBus({.policy = "<deny send_destination=\"org.gnome.evolution.dataserver.Sources5\"/>"});
        startServer();
        server->addCalendar(u"one"_s, {at("Tea")});
        QCOMPARE(fetch(), u"Folder"_s);
    }

    void aServerThatEndsAtItsStartCountsAsNone()
    {
        startBus({.ownServices = {{u"org.gnome.evolution.dataserver.Sources5"_s, "/bin/false"}}});
        QCOMPARE(fetch(), u"Folder"_s);
    }

    void onlySoManyCallsWaitForTheServerAtTheSameTime()
    {
        startServer();
        server->addCalendar(u"one"_s, daily(500));
        QList<QDBusMessage> unanswered;
        server->answers[u"GetObject"_s] = [&unanswered](const QDBusMessage &message) {
            unanswered << message;
            return std::nullopt;
        };
        std::optional<CalendarStore::Answer> answer;
        auto calendars = store(60s);
        const ScheduledCall request = calendars.fetch(
            CalendarFixture().window(), [&answer](const CalendarStore::Answer &told) { answer = told; });
        QTRY_VERIFY(!unanswered.isEmpty());
        qsizetype most = 0;
        while (!answer) {
            most = std::max(most, unanswered.size());
            for (const QDBusMessage &message : std::exchange(unanswered, {}))
                bus->connection(u"server"_s).send(*server->ordinaryAnswer(message));
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QCOMPARE((*answer)->size(), 501);
        QVERIFY2(most <= 32, qPrintable(QString::number(most)));
    }

    void theEndDoesNotWaitForManyRepeatingEvents()
    {
        startServer();
        server->addCalendar(u"one"_s, daily(20'000));
        auto calendars =
            std::make_unique<DesktopCalendarStore>(bus->connection(u"client"_s), home->folders(), 60s);
        const ScheduledCall request = calendars->fetch(CalendarFixture().window(), [](const auto &) {});
        QTRY_VERIFY_WITH_TIMEOUT(server->asked.count(u"GetObject"_s) > 0, 30'000);
        QElapsedTimer timer;
        timer.start();
        calendars.reset();
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
        // The bus has no message left for it.
        bus->connection(u"client"_s)
            .call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                 u"org.freedesktop.DBus.Peer"_s, u"Ping"_s));
        QVERIFY(timer.elapsed() < 1500);
    }

    void aFrozenServerIsNotWaitedForLongerThanItMayTake()
    {
        startServer();
        server->answers[u"GetManagedObjects"_s] = [](const QDBusMessage &) { return std::nullopt; };
        std::filesystem::remove_all(home->path("home/.calendars"));
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(fetch(300ms), u"-"_s);
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }

    void foldersAreReadInThePlaceOfAFrozenServer()
    {
        startServer();
        server->answers[u"GetManagedObjects"_s] = [](const QDBusMessage &) { return std::nullopt; };
        QCOMPARE(fetch(3s), u"Folder"_s);
    }

    void aFrozenCalendarDoesNotHideTheOthers_data()
    {
        QTest::addColumn<QString>("method");
        for (const auto &method : {u"OpenCalendar"_s, u"Open"_s, u"GetObjectList"_s, u"GetObject"_s})
            QTest::newRow(qPrintable(method)) << method;
    }
    void aFrozenCalendarDoesNotHideTheOthers()
    {
        QFETCH(QString, method);
        startServer();
        server->addCalendar(u"cold"_s, {at("Ice", "RRULE:FREQ=DAILY\r\n")});
        server->addCalendar(u"warm"_s, {at("Tea"), at("Milk", "RRULE:FREQ=DAILY\r\n")});
        server->answers[method] = [this](const QDBusMessage &message) -> std::optional<QDBusMessage> {
            if (message.path().endsWith(u"cold"_s) || message.arguments().value(0) == u"cold"_s)
                return std::nullopt;
            return server->ordinaryAnswer(message);
        };
        QCOMPARE(fetch(3s), u"Tea Milk Folder"_s);
    }

    void errorSkipsOnlyTheAffectedEvents_data() { aFrozenCalendarDoesNotHideTheOthers_data(); }
    void errorSkipsOnlyTheAffectedEvents()
    {
        QFETCH(QString, method);
        startServer();
        server->addCalendar(u"gone"_s, {at("Ice", "RRULE:FREQ=DAILY\r\n")});
        server->addCalendar(u"here"_s, {at("Tea")});
        server->answers[method] = [this](const QDBusMessage &message) -> std::optional<QDBusMessage> {
            if (message.path().endsWith(u"gone"_s) || message.arguments().value(0) == u"gone"_s)
                return message.createErrorReply(u"org.example.Gone"_s, u"removed"_s);
            return server->ordinaryAnswer(message);
        };
        QCOMPARE(fetch(), u"Tea Folder"_s);
    }

    void garbageIsNoAnswer_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QVariantList>("garbage");
        QTest::addColumn<QString>("told");
        const QVariantList nothing;
        const QVariantList number{42};
        const QVariantList text{u"\u0001\uFFFDBEGIN:VEVENT\nDTSTART:"_s};
        const QVariantList list{
            QStringList{u"BEGIN:VEVENT\n"_s, u""_s, u"END:VEVENT"_s, QString(100'000, u'\\')}};
        for (const QVariantList &garbage : {nothing, number, text, list}) {
            for (const auto &[method, told] :
                 {std::pair(u"GetManagedObjects"_s, u""_s), std::pair(u"OpenCalendar"_s, u""_s),
                  std::pair(u"Open"_s, u"Tea Milk"_s), std::pair(u"GetObjectList"_s, u""_s),
                  std::pair(u"GetObject"_s, u"Tea"_s)})
                QTest::addRow("%s %d", qPrintable(method), int(garbage.value(0).typeId()))
                    << method << garbage << told;
        }
        QTest::newRow("a path that is none")
            << u"OpenCalendar"_s << QVariantList{u"not a path"_s, u"?"_s} << u""_s;
    }
    void garbageIsNoAnswer()
    {
        QFETCH(QString, method);
        QFETCH(QVariantList, garbage);
        QFETCH(QString, told);
        startServer();
        server->addCalendar(u"one"_s, {at("Tea"), at("Milk", "RRULE:FREQ=DAILY\r\n")});
        server->answers[method] = [&garbage](const QDBusMessage &message) {
            return message.createReply(garbage);
        };
        QCOMPARE(fetch(), (told + u" Folder"_s).trimmed());
    }

    void tenThousandEventsAreRead()
    {
        startServer();
        QStringList events;
        for (int index = 0; index < 10'000; ++index)
            events << at("Tea").replace(u"UID:"_s, u"UID:%1"_s.arg(index));
        server->addCalendar(u"one"_s, events);
        QCOMPARE(fetch().count(u"Tea"_s), 10'000);
    }

    void quitDoesNotWaitForAFrozenServer()
    {
        startServer();
        server->addCalendar(u"one"_s, {});
        server->answers[u"GetObjectList"_s] = [](const QDBusMessage &) { return std::nullopt; };
        QElapsedTimer timer;
        bool isAnswered = false;
        {
            auto calendars = store();
            const auto request = calendars.fetch({}, [&isAnswered](const auto &) { isAnswered = true; });
            QTRY_VERIFY(server->asked.contains(u"GetObjectList"_s));
            timer.start();
        }
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!isAnswered);
    }

    void aBusThatEndsMeanwhileEndsTheFetch()
    {
        startServer();
        server->addCalendar(u"one"_s, {});
        server->answers[u"GetObjectList"_s] = [this](const QDBusMessage &) {
            bus->kill();
            return std::nullopt;
        };
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(fetch(), u"Folder"_s);
        QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
    }
};

PELKO_TEST(TestEvolutionCalendars)
#include "tst_EvolutionCalendars.moc"
