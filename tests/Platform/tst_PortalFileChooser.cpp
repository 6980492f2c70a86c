#include "Platform/PortalFileChooser.h"
#include "support/ManualDesktop.h"
#include "support/TestProgram.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace
{
using Files = QList<std::filesystem::path>;

const QString service = u"org.freedesktop.portal.Desktop"_s;

/// The desktop's side of the bus.
class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit Portal(const QDBusConnection &bus) : m_bus(bus) {}

    void answer(uint response, const QVariantMap &results)
    {
        auto signal = QDBusMessage::createTargetedSignal(caller, handle, u"org.freedesktop.portal.Request"_s,
                                                         u"Response"_s);
        signal << response << results;
        m_bus.send(signal);
    }

    QString caller;
    QString handle;
    QString parent;
    QVariantMap options;
    QString handleInstead; // as early versions of the service had it

public Q_SLOTS:
    QDBusObjectPath OpenFile(const QString &parentWindow, const QString &, const QVariantMap &given)
    {
        parent = parentWindow;
        options = given;
        caller = message().service();
        const QString sender = caller.sliced(1).replace(u'.', u'_');
        handle = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(sender,
                                                                        given[u"handle_token"_s].toString());
        if (!handleInstead.isEmpty())
            handle = handleInstead;
        return QDBusObjectPath(handle);
    }

private:
    QDBusConnection m_bus;
};

QString written(const FileChooser::Choice &choice)
{
    if (const auto *failure = std::get_if<FileError>(&choice))
        return u"failed: "_s + failure->description;
    QStringList names;
    for (const auto &file : std::get<Files>(choice))
        names << QString::fromStdString(file.string());
    return u"chosen: "_s + names.join(u' ');
}
} // namespace

class TestPortalFileChooser : public QObject
{
    Q_OBJECT

    QProcess daemon;
    QString address;
    ManualFileChooser otherwise;
    std::unique_ptr<Portal> portal;
    QStringList choices;
    ScheduledCall request;

    QDBusConnection connected(const QString &name) const
    {
        return QDBusConnection::connectToBus(address, name);
    }

    void choose(const QDBusConnection &bus, FileChooser::Wanted wanted = FileChooser::Wanted::picture)
    {
        PortalFileChooser chooser(bus, [] { return u"x11:2a"_s; }, otherwise);
        request =
            chooser.choose(wanted, [this](const FileChooser::Choice &choice) { choices << written(choice); });
    }

    void offerPortal()
    {
        QDBusConnection desktop = connected(u"desktop"_s);
        portal = std::make_unique<Portal>(desktop);
        QVERIFY(desktop.registerObject(u"/org/freedesktop/portal/desktop"_s, portal.get(),
                                       QDBusConnection::ExportAllSlots));
        QVERIFY(desktop.registerService(service));
    }

private Q_SLOTS:
    void initTestCase()
    {
        daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY2(daemon.waitForReadyRead(), "no bus");
        address = QString::fromUtf8(daemon.readLine().trimmed());
    }

    void cleanup()
    {
        request = {};
        choices.clear();
        portal.reset();
        connected(u"desktop"_s).unregisterService(service);
        QDBusConnection::disconnectFromBus(u"desktop"_s);
    }

    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(u"program"_s);
        daemon.terminate();
        daemon.waitForFinished();
    }

    void theDesktopIsAskedForOnePictureForThisWindow()
    {
        offerPortal();
        choose(connected(u"program"_s));
        QTRY_VERIFY(!portal->handle.isEmpty());
        QCOMPARE(portal->parent, u"x11:2a"_s);
        QCOMPARE(portal->options[u"multiple"_s].toBool(), false);
        QVERIFY(portal->options.contains(u"filters"_s));
        QVERIFY(!portal->options.contains(u"directory"_s));
        QCOMPARE(otherwise.asked, 0);
    }

    void theDesktopIsAskedForAFolder()
    {
        offerPortal();
        choose(connected(u"program"_s), FileChooser::Wanted::folder);
        QTRY_VERIFY(!portal->handle.isEmpty());
        QCOMPARE(portal->options[u"directory"_s].toBool(), true);
        QVERIFY(!portal->options.contains(u"filters"_s));
        portal->answer(0, {{u"uris"_s, QStringList{u"file:///home/me/my%20notes"_s}}});
        QTRY_COMPARE(choices, QStringList{u"chosen: /home/me/my notes"_s});
    }

    void theChosenFileIsHandedOverByteForByte()
    {
        offerPortal();
        choose(connected(u"program"_s));
        QTRY_VERIFY(!portal->handle.isEmpty());
        portal->answer(0, {{u"uris"_s, QStringList{u"file:///home/me/a%20%C3%A9.png"_s}}});
        QTRY_COMPARE(choices, QStringList{u"chosen: /home/me/a \u00e9.png"_s});
    }

    void whatIsNotOnThisMachineIsNoFile()
    {
        offerPortal();
        choose(connected(u"program"_s));
        QTRY_VERIFY(!portal->handle.isEmpty());
        portal->answer(0, {{u"uris"_s, QStringList{u"https://example.org/a.png"_s}}});
        QTRY_COMPARE(choices, QStringList{u"chosen: "_s});
    }

    void cancellingChoosesNothing()
    {
        offerPortal();
        choose(connected(u"program"_s));
        QTRY_VERIFY(!portal->handle.isEmpty());
        portal->answer(1, {});
        QTRY_COMPARE(choices, QStringList{u"chosen: "_s});
    }

    void anUnexpectedEndIsAFailure()
    {
        offerPortal();
        choose(connected(u"program"_s));
        QTRY_VERIFY(!portal->handle.isEmpty());
        portal->answer(2, {});
        QTRY_COMPARE(choices, QStringList{u"failed: The file chooser came to an unexpected end."_s});
    }

    void anAnswerUnderAnotherNameIsHeardToo()
    {
        offerPortal();
        portal->handleInstead = u"/org/freedesktop/portal/desktop/request/own_name"_s;
        choose(connected(u"program"_s));
        QTRY_VERIFY(!portal->handle.isEmpty());
        // The program listens under that name once it has heard of it.
        QTRY_VERIFY((portal->answer(1, {}), !choices.isEmpty()));
        QCOMPARE(choices.constFirst(), u"chosen: "_s);
    }

    void withoutAPortalTheOtherChooserIsShown()
    {
        otherwise.asked = 0;
        choose(connected(u"program"_s), FileChooser::Wanted::folder);
        QTRY_COMPARE(otherwise.asked, 1);
        QCOMPARE(otherwise.wanted, FileChooser::Wanted::folder);
        otherwise.answer(Files{"/a.png"});
        QCOMPARE(choices, QStringList{u"chosen: /a.png"_s});
    }

    void withoutABusTheOtherChooserIsShown()
    {
        otherwise.asked = 0;
        choose(QDBusConnection(u"nowhere"_s));
        QTRY_COMPARE(otherwise.asked, 1);
    }

    void droppingTheRequestClosesTheOtherChooserToo()
    {
        choose(QDBusConnection(u"nowhere"_s));
        QTRY_VERIFY(otherwise.isOpen());
        request = {};
        QVERIFY(!otherwise.isOpen());
    }
};

PELKO_TEST(TestPortalFileChooser)
#include "tst_PortalFileChooser.moc"
