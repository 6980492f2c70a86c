#include "Platform/CalendarFetch.h"
#include "Platform/PrivateBus.h"
#include "support/TestProgram.h"

#include <QDBusInterface>
#include <QDBusReply>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace
{
const QString serverName = u"org.gnome.evolution.dataserver.Calendar8"_s;

/// Writes events to the server as another program would.
class Writer
{
public:
    explicit Writer(const QDBusConnection &bus) : m_bus(bus) {}

    bool open(const QString &calendar)
    {
        QDBusInterface factory(serverName, u"/org/gnome/evolution/dataserver/CalendarFactory"_s,
                               u"org.gnome.evolution.dataserver.CalendarFactory"_s, m_bus);
        const QDBusMessage opened = factory.call(u"OpenCalendar"_s, calendar);
        if (opened.type() != QDBusMessage::ReplyMessage)
            return false;
        m_calendar = std::make_unique<QDBusInterface>(opened.arguments().at(1).toString(),
                                                      opened.arguments().at(0).toString(),
                                                      u"org.gnome.evolution.dataserver.Calendar"_s, m_bus);
        return call(u"Open"_s, {});
    }
    bool add(const QByteArray &event)
    {
        return call(u"CreateObjects"_s, {QStringList{QString::fromUtf8(eventText(event))}, 0U});
    }
    bool change(const QByteArray &event)
    {
        return call(u"ModifyObjects"_s, {QStringList{QString::fromUtf8(eventText(event))}, u"this"_s, 0U});
    }
    bool addZone(const QByteArray &zone) { return call(u"AddTimezone"_s, {QString::fromUtf8(zone)}); }

private:
    bool call(const QString &method, const QVariantList &arguments)
    {
        const QDBusMessage answer = m_calendar->callWithArgumentList(QDBus::Block, method, arguments);
        if (answer.type() != QDBusMessage::ReplyMessage)
            qWarning("%s: %s", qPrintable(method), qPrintable(answer.errorMessage()));
        return answer.type() == QDBusMessage::ReplyMessage;
    }

    QDBusConnection m_bus;
    std::unique_ptr<QDBusInterface> m_calendar;
};
} // namespace

/// The real server on a private bus with private folders.
class TestEvolutionDataServer : public QObject
{
    Q_OBJECT

    std::unique_ptr<CalendarHome> home;
    std::unique_ptr<PrivateBus> bus;
    std::unique_ptr<Writer> writer;

    QString fetch()
    {
        DesktopCalendarStore store(bus->connection(u"client"_s), home->folders(), std::chrono::seconds(20));
        return fetched(store);
    }

private Q_SLOTS:
    void initTestCase()
    {
        // Services have the environment of the bus that starts them.
        home = std::make_unique<CalendarHome>();
        home->put(".calendars/a.ics", eventText("SUMMARY:Folder\r\nDTSTART:20261121T100000Z"));
        for (const auto &[name, folder] :
             {std::pair("HOME", "home"), std::pair("XDG_DATA_HOME", "home/.local/share"),
              std::pair("XDG_CONFIG_HOME", "home/.config"), std::pair("XDG_CACHE_HOME", "home/.cache"),
              std::pair("XDG_RUNTIME_DIR", "home/run")}) {
            std::filesystem::create_directories(home->path(folder));
            qputenv(name, home->path(folder).c_str());
        }
        std::filesystem::permissions(home->path("home/run"), std::filesystem::perms::owner_all);
        qputenv("GSETTINGS_BACKEND", "memory");
        qunsetenv("DISPLAY");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        bus = std::make_unique<PrivateBus>(PrivateBus::Configuration{
            .installedServices = {serverName, u"org.gnome.evolution.dataserver.Sources5"_s}});
        writer = std::make_unique<Writer>(bus->connection(u"writer"_s));
        QVERIFY2(writer->open(u"system-calendar"_s), "evolution-data-server has to be installed");
    }
    void cleanupTestCase()
    {
        writer.reset();
        bus.reset();
    }

    void anEmptyCalendarHidesNoFolders() { QCOMPARE(fetch(), u"Folder"_s); }

    void eventsOfTheServerAreTold()
    {
        QVERIFY(writer->add("UID:1\r\nSUMMARY:Tea\r\nDTSTART:20261121T100000Z\r\nDTEND:20261121T110000Z"));
        QVERIFY(writer->add("UID:2\r\nDTSTART;VALUE=DATE:20261121"));
        QVERIFY(writer->add("UID:3\r\nSUMMARY:Past\r\nDTSTART:20261119T100000Z\r\nDTEND:20261119T110000Z"));
        QVERIFY(writer->add("UID:4\r\nSUMMARY:Off\r\nDTSTART:20261121T100000Z\r\nSTATUS:CANCELLED"));
        QCOMPARE(fetch().split(u' ').size(), 3);
        QVERIFY(fetch().contains(u"Tea"_s));
        QVERIFY(fetch().contains(u"?"_s));
    }

    void recurringEventsIncludeTheirOverrides()
    {
        QVERIFY(writer->add("UID:5\r\nSUMMARY:Daily\r\nDTSTART:20261101T120000Z\r\nDTEND:20261101T123000Z\r\n"
                            "RRULE:FREQ=DAILY"));
        QVERIFY(fetch().contains(u"Daily"_s));
        QVERIFY(writer->change("UID:5\r\nSUMMARY:Moved\r\nRECURRENCE-ID:20261121T120000Z\r\n"
                               "DTSTART:20261121T150000Z\r\nDTEND:20261121T153000Z"));
        QVERIFY(fetch().contains(u"Moved"_s));
        QVERIFY(!fetch().contains(u"Daily"_s));

        QVERIFY(
            writer->add("UID:6\r\nSUMMARY:Weekly\r\nDTSTART:20261005T120000Z\r\nDTEND:20261005T123000Z\r\n"
                        "RRULE:FREQ=WEEKLY"));
        QVERIFY(!fetch().contains(u"Weekly"_s)); // on Mondays
        QVERIFY(writer->change("UID:6\r\nSUMMARY:Once\r\nRECURRENCE-ID:20261116T120000Z\r\n"
                               "DTSTART:20261121T150000Z\r\nDTEND:20261121T153000Z"));
        QVERIFY(fetch().contains(u"Once"_s));
    }

    void zonesOfTheServerAreKnown()
    {
        QVERIFY(writer->addZone(
            "BEGIN:VTIMEZONE\r\nTZID:Our Town\r\nBEGIN:STANDARD\r\nDTSTART:19700101T000000\r\n"
            "TZOFFSETFROM:+0300\r\nTZOFFSETTO:+0300\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"));
        QVERIFY(writer->add("UID:7\r\nSUMMARY:Town\r\nDTSTART;TZID=Our Town:20261122T110000\r\n"
                            "DTEND;TZID=Our Town:20261122T113000"));
        QVERIFY(fetch().contains(u"Town"_s)); // at eight; at eleven it would be too late
    }
};

PELKO_TEST(TestEvolutionDataServer)
#include "tst_EvolutionDataServer.moc"
