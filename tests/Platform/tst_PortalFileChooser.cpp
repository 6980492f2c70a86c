#include "Platform/PortalFileChooser.h"
#include "Platform/PrivateBus.h"
#include "support/ManualDesktop.h"
#include "support/TestProgram.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

using namespace Qt::StringLiterals;

namespace
{
using Files = QList<std::filesystem::path>;

const QString service = u"org.freedesktop.portal.Desktop"_s;

/// The dialogs of the portal. Records which of them are closed by the program.
class Dialogs : public QDBusVirtualObject
{
public:
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() == "Close"_L1)
            closed << message.path();
        connection.send(message.createReply());
        return true;
    }

    QStringList closed;
};

/// The portal's side of the bus.
class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit Portal(const QDBusConnection &bus) : m_bus(bus)
    {
        m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this, QDBusConnection::ExportAllSlots);
        m_bus.registerVirtualObject(u"/org/freedesktop/portal/desktop/request"_s, &dialogs,
                                    QDBusConnection::SubPath);
        m_bus.registerService(service);
    }

    void answer(uint response, const QVariantMap &results)
    {
        auto signal = QDBusMessage::createTargetedSignal(caller, handle, u"org.freedesktop.portal.Request"_s,
                                                         u"Response"_s);
        signal << response << results;
        m_bus.send(signal);
    }

    /// Returns once the program has received everything sent so far: messages keep their order.
    bool flush()
    {
        const auto ping =
            QDBusMessage::createMethodCall(caller, u"/"_s, u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
        const bool isAnswered = m_bus.call(ping).type() == QDBusMessage::ReplyMessage;
        QCoreApplication::processEvents();
        return isAnswered;
    }

    bool isSilent = false; // answers no call
    Dialogs dialogs;
    QString caller;
    QString handle;
    QString parent;
    QVariantMap options;
    QString handleInstead; // early versions of the service choose the handle themselves

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
        setDelayedReply(isSilent);
        return QDBusObjectPath(handle);
    }

private:
    QDBusConnection m_bus;
};

QString written(const FileChooser::Choice &choice)
{
    if (const auto *failure = std::get_if<FileError>(&choice))
        return u"failed: "_s + failure->description();
    QStringList names;
    for (const auto &file : std::get<Files>(choice))
        names << QString::fromStdString(file.string());
    return u"chosen: "_s + names.join(u' ');
}
} // namespace

class TestPortalFileChooser : public QObject
{
    Q_OBJECT

    std::unique_ptr<PrivateBus> bus;
    ManualFileChooser otherwise;
    std::unique_ptr<Portal> portal;
    QStringList choices;
    ScheduledCall request;

    QDBusConnection program() { return bus->connection(u"program"_s); }

    void choose(const QDBusConnection &connection, FileChooser::Target wanted = FileChooser::Target::picture,
                std::chrono::milliseconds replyTimeout = std::chrono::seconds(10))
    {
        PortalFileChooser chooser(connection, [] { return u"x11:2a"_s; }, otherwise, replyTimeout);
        request =
            chooser.choose(wanted, [this](const FileChooser::Choice &choice) { choices << written(choice); });
    }

    void offerPortal() { portal = std::make_unique<Portal>(bus->connection(u"desktop"_s)); }

private Q_SLOTS:
    void init()
    {
        bus = std::make_unique<PrivateBus>();
        otherwise.asked = 0;
    }

    void cleanup()
    {
        request = {};
        choices.clear();
        portal.reset();
        bus.reset();
    }

    void theDesktopIsAskedForOnePictureForThisWindow()
    {
        offerPortal();
        choose(program());
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
        choose(program(), FileChooser::Target::folder);
        QTRY_VERIFY(!portal->handle.isEmpty());
        QCOMPARE(portal->options[u"directory"_s].toBool(), true);
        QVERIFY(!portal->options.contains(u"filters"_s));
        portal->answer(0, {{u"uris"_s, QStringList{u"file:///home/me/my%20notes"_s}}});
        QTRY_COMPARE(choices, QStringList{u"chosen: /home/me/my notes"_s});
    }

    void theChosenFileIsHandedOverByteForByte()
    {
        offerPortal();
        choose(program());
        QTRY_VERIFY(!portal->handle.isEmpty());
        portal->answer(0, {{u"uris"_s, QStringList{u"file:///home/me/a%20%C3%A9.png"_s}}});
        QTRY_COMPARE(choices, QStringList{u"chosen: /home/me/a \u00e9.png"_s});
    }

    void ignoresRemoteFiles()
    {
        offerPortal();
        choose(program());
        QTRY_VERIFY(!portal->handle.isEmpty());
        portal->answer(0, {{u"uris"_s, QStringList{u"https://example.org/a.png"_s}}});
        QTRY_COMPARE(choices, QStringList{u"chosen: "_s});
    }

    void cancellingChoosesNothing()
    {
        offerPortal();
        choose(program());
        QTRY_VERIFY(!portal->handle.isEmpty());
        portal->answer(1, {});
        QTRY_COMPARE(choices, QStringList{u"chosen: "_s});
    }

    void aDialogClosedOtherwiseIsCancelled_data()
    {
        QTest::addColumn<uint>("response");
        QTest::newRow("Escape or a closed window") << 2U;
        QTest::newRow("unknown") << 77U;
    }
    void aDialogClosedOtherwiseIsCancelled()
    {
        QFETCH(uint, response);
        offerPortal();
        choose(program());
        QTRY_VERIFY(!portal->handle.isEmpty());
        portal->answer(response, {});
        QTRY_COMPARE(choices, QStringList{u"chosen: "_s});
    }

    void aPortalThatEndsWhileItsDialogIsOpenIsAFailure()
    {
        offerPortal();
        choose(program());
        QTRY_VERIFY(!portal->handle.isEmpty());
        QVERIFY(portal->flush());
        bus->connection(u"desktop"_s).unregisterService(service);
        QTRY_COMPARE(choices, QStringList{u"failed: The file chooser came to an unexpected end"_s});
        QCOMPARE(otherwise.asked, 0);
    }

    void aPortalThatNeverAnswersIsReplacedByTheOtherChooser()
    {
        offerPortal();
        portal->isSilent = true;
        choose(program(), FileChooser::Target::picture, std::chrono::milliseconds(100));
        QTRY_COMPARE(otherwise.asked, 1);
    }

    void aLateDialogIsClosedAndItsAnswerIgnored()
    {
        offerPortal();
        portal->isSilent = true;
        choose(program(), FileChooser::Target::picture, std::chrono::milliseconds(100));
        QTRY_COMPARE(otherwise.asked, 1);
        QTRY_COMPARE(portal->dialogs.closed, QStringList{portal->handle});

        portal->answer(0, {{u"uris"_s, QStringList{u"file:///late.png"_s}}});
        otherwise.answer(Files{"/a.png"});
        portal->answer(0, {{u"uris"_s, QStringList{u"file:///later.png"_s}}});
        QVERIFY(portal->flush());
        QCOMPARE(choices, QStringList{u"chosen: /a.png"_s});
    }

    void droppingTheRequestClosesTheDialog()
    {
        offerPortal();
        choose(program());
        QTRY_VERIFY(!portal->handle.isEmpty());
        QVERIFY(portal->flush());
        request = {};
        QTRY_COMPARE(portal->dialogs.closed, QStringList{portal->handle});
    }

    void anAnswerUnderAnotherNameIsHeardToo()
    {
        offerPortal();
        portal->handleInstead = u"/org/freedesktop/portal/desktop/request/own_name"_s;
        choose(program());
        QTRY_VERIFY(!portal->handle.isEmpty());
        // The program knows the handle after it has received the reply.
        QTRY_VERIFY((portal->answer(1, {}), !choices.isEmpty()));
        QCOMPARE(choices.constFirst(), u"chosen: "_s);
    }

    void withoutAPortalTheOtherChooserIsShown()
    {
        choose(program(), FileChooser::Target::folder);
        QTRY_COMPARE(otherwise.asked, 1);
        QCOMPARE(otherwise.target, FileChooser::Target::folder);
        otherwise.answer(Files{"/a.png"});
        QCOMPARE(choices, QStringList{u"chosen: /a.png"_s});
    }

    void withoutABusTheOtherChooserIsShown()
    {
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
