#include "Platform/ApplicationOnBus.h"
#include "Platform/PrivateBus.h"
#include "support/TestProgram.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class TestApplicationOnBus : public QObject
{
    Q_OBJECT

private:
    static void call(const QDBusConnection &bus, const QString &method, const QVariantList &arguments)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(u"app.pelko.Pelko"_s, u"/app/pelko/Pelko"_s,
                                                              u"org.freedesktop.Application"_s, method);
        message.setArguments(arguments);
        bus.asyncCall(message);
    }

private Q_SLOTS:
    void cleanup() { qunsetenv("XDG_ACTIVATION_TOKEN"); }

    void isAskedForTheWindow()
    {
        PrivateBus bus;
        ApplicationOnBus application;
        application.connectTo(bus.connection(u"pelko"_s));
        const QSignalSpy opened(&application, &ApplicationOnBus::openRequested);

        call(bus.connection(u"desktop"_s), u"Activate"_s, {QVariantMap{{u"activation-token"_s, u"t1"_s}}});

        QTRY_COMPARE(opened.count(), 1);
        QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), QByteArray("t1"));
    }

    void theNameIsOfTheFirst()
    {
        PrivateBus bus;
        ApplicationOnBus first;
        ApplicationOnBus second;
        first.connectTo(bus.connection(u"one"_s));
        second.connectTo(bus.connection(u"two"_s));
        const QSignalSpy opened(&first, &ApplicationOnBus::openRequested);
        const QSignalSpy others(&second, &ApplicationOnBus::openRequested);

        call(bus.connection(u"desktop"_s), u"Open"_s, {QStringList(), QVariantMap()});

        QTRY_COMPARE(opened.count(), 1);
        QCOMPARE(others.count(), 0);
    }

    void aBusThatIsNotThereLeavesRoomForAnother()
    {
        PrivateBus bus;
        ApplicationOnBus application;
        const QSignalSpy opened(&application, &ApplicationOnBus::openRequested);
        application.connectTo(QDBusConnection(u"nowhere"_s));
        QCOMPARE(opened.count(), 0);

        application.connectTo(bus.connection(u"pelko"_s));
        call(bus.connection(u"desktop"_s), u"Activate"_s, {QVariantMap()});
        QTRY_COMPARE(opened.count(), 1);
    }
};

PELKO_TEST(TestApplicationOnBus)
#include "tst_ApplicationOnBus.moc"
