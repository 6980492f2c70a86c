#include "Platform/PrivateBus.h"
#include "Platform/Tray/StatusNotifierItem.h"
#include "Platform/Tray/Tray.h"
#include "Platform/Tray/TrayTypes.h"
#include "Platform/TrayWatcher.h"
#include "Timers/TrayIconState.h"
#include "support/TestProgram.h"

#include <QDBusInterface>
#include <QDBusPendingReply>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{
TrayIconState running()
{
    return {.isRunning = true,
            .flameOpacity = 1.0,
            .progress = 0.3,
            .minutesLeft = 17,
            .label = u"16:42"_s,
            .toolTipTitle = u"16:42 of focus left"_s,
            .toolTipText = u"2 sessions done"_s,
            .menu = {{TrayMenuRow::Command::open, u"Open Pelko"_s},
                     {TrayMenuRow::Command::startOrPause, u"Pause"_s},
                     {TrayMenuRow::Command::none, {}},
                     {TrayMenuRow::Command::quit, u"Quit"_s}}};
}
} // namespace

class TestTray : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<Tray> m_tray;
    QString m_item;

    /// Processes events until the reply has arrived; both sides are on this thread.
    static QDBusMessage answered(const QDBusPendingCall &call)
    {
        QDBusPendingCallWatcher watcher(call);
        const bool isFinished = QTest::qWaitFor([&] { return watcher.isFinished(); });
        return isFinished ? watcher.reply() : QDBusMessage();
    }

    QDBusMessage callItem(const QString &path, const QString &interface, const QString &method,
                          const QVariantList &arguments = {})
    {
        QDBusMessage message = QDBusMessage::createMethodCall(m_item, path, interface, method);
        message.setArguments(arguments);
        return answered(QDBusConnection(u"host"_s).asyncCall(message));
    }

    QDBusMessage callMenu(const QString &method, const QVariantList &arguments)
    {
        return callItem(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, method, arguments);
    }

    QVariant property(const QString &name)
    {
        const QDBusMessage reply = callItem(u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Properties"_s,
                                            u"Get"_s, {u"org.kde.StatusNotifierItem"_s, name});
        return reply.arguments().value(0).value<QDBusVariant>().variant();
    }

private Q_SLOTS:
    void init()
    {
        m_bus = std::make_unique<PrivateBus>();
        m_tray = std::make_unique<Tray>();
        m_item = u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid());
    }

    void cleanup()
    {
        m_tray.reset();
        m_bus.reset();
    }

    void enrolsWhereThereIsATray()
    {
        const TrayWatcher watcher(m_bus->connection(u"host"_s));
        const QSignalSpy present(m_tray.get(), &Tray::isPresentChanged);

        m_tray->connectTo(m_bus->connection(u"pelko"_s));

        QTRY_VERIFY(m_tray->isPresent());
        QCOMPARE(watcher.items, QStringList{m_item});
        QCOMPARE(present.count(), 1);
    }

    void isNotPresentWithoutATray()
    {
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTest::qWait(50);
        QVERIFY(!m_tray->isPresent());

        const TrayWatcher watcher(m_bus->connection(u"host"_s));

        QTRY_VERIFY(m_tray->isPresent());
    }

    void isNotPresentWithoutABus()
    {
        m_tray->connectTo(QDBusConnection::connectToBus(u"unix:path=/nowhere"_s, u"pelko"_s));
        m_tray->show(running());

        QVERIFY(!m_tray->isPresent());
        QDBusConnection::disconnectFromBus(u"pelko"_s);
    }

    void watcherWithoutHostIsNoTray()
    {
        TrayWatcher watcher(m_bus->connection(u"host"_s));
        watcher.hasHost = false;
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_COMPARE(watcher.items.size(), 1);
        QTest::qWait(50);
        QVERIFY(!m_tray->isPresent());

        watcher.setHost(true);
        QTRY_VERIFY(m_tray->isPresent());

        watcher.setHost(false);
        QTRY_VERIFY(!m_tray->isPresent());
    }

    void registersAgainWhenTheTrayComesBack()
    {
        const QDBusConnection host = m_bus->connection(u"host"_s);
        auto watcher = std::make_unique<TrayWatcher>(host);
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_VERIFY(m_tray->isPresent());

        watcher.reset();
        QTRY_VERIFY(!m_tray->isPresent());
        watcher = std::make_unique<TrayWatcher>(host);

        QTRY_VERIFY(m_tray->isPresent());
        QCOMPARE(watcher->items, QStringList{m_item});
    }

    void registersWithAWatcherThatReplacesAnother()
    {
        const TrayWatcher first(m_bus->connection(u"first"_s));
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_VERIFY(m_tray->isPresent());

        const TrayWatcher second(m_bus->connection(u"second"_s));

        QTRY_COMPARE(second.items, QStringList{m_item});
        QTRY_VERIFY(m_tray->isPresent());
    }

    void aLateAnswerOfAReplacedWatcherIsIgnored()
    {
        TrayWatcher first(m_bus->connection(u"host"_s), TrayWatcher::Registration::unanswered);
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_COMPARE(first.items.size(), 1);
        const TrayWatcher second(m_bus->connection(u"second"_s));
        QTRY_VERIFY(m_tray->isPresent());
        const QSignalSpy changes(m_tray.get(), &Tray::isPresentChanged);

        first.answer(TrayWatcher::Registration::refused);
        QVERIFY(property(u"Id"_s).isValid()); // sent after the refusal, so that has arrived too
        QCoreApplication::processEvents();

        QCOMPARE(changes.count(), 0);
    }

    void aBusThatDiesTakesTheTrayWithIt()
    {
        const TrayWatcher watcher(m_bus->connection(u"host"_s));
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_VERIFY(m_tray->isPresent());

        m_bus->kill();

        QTRY_VERIFY(!m_tray->isPresent());
        m_tray->show(running());
    }

    void tellsTheTimeInLabelAndToolTip()
    {
        const TrayWatcher watcher(m_bus->connection(u"host"_s));
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_VERIFY(m_tray->isPresent());
        QCOMPARE(property(u"XAyatanaLabel"_s).toString(), QString());

        m_tray->show(running());

        QCOMPARE(property(u"XAyatanaLabel"_s).toString(), u"16:42"_s);
        const auto toolTip = qdbus_cast<TrayToolTip>(property(u"ToolTip"_s));
        QCOMPARE(toolTip.title, u"16:42 of focus left"_s);
        QCOMPARE(toolTip.text, u"2 sessions done"_s);
    }

    void offersTheIconInSeveralSizes()
    {
        const TrayWatcher watcher(m_bus->connection(u"host"_s));
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_VERIFY(m_tray->isPresent());
        m_tray->show(running());

        const auto pixmaps = qdbus_cast<TrayPixmaps>(property(u"IconPixmap"_s));

        QList<int> sizes;
        for (const TrayPixmap &pixmap : pixmaps) {
            sizes.append(pixmap.width);
            QCOMPARE(pixmap.bytes.size(), 4 * pixmap.width * pixmap.height);
        }
        QCOMPARE(sizes, QList<int>({16, 22, 24, 32, 48}));
    }

    void announcesOnlyWhatChanged()
    {
        const StatusNotifierItem *item = m_tray->findChild<StatusNotifierItem *>();
        const QSignalSpy icon(item, &StatusNotifierItem::NewIcon);
        const QSignalSpy label(item, &StatusNotifierItem::XAyatanaNewLabel);
        const QSignalSpy toolTip(item, &StatusNotifierItem::NewToolTip);

        m_tray->show(running());
        m_tray->show(running());
        QCOMPARE(icon.count() + label.count() + toolTip.count(), 3);

        TrayIconState next = running();
        next.flameOpacity = 0.5;
        m_tray->show(next);
        QCOMPARE(icon.count(), 2);
        QCOMPARE(label.count() + toolTip.count(), 2);
    }

    void clicksArriveWithTheirPlace()
    {
        const TrayWatcher watcher(m_bus->connection(u"host"_s));
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_VERIFY(m_tray->isPresent());
        const QSignalSpy activated(m_tray.get(), &Tray::activated);
        const QSignalSpy secondary(m_tray.get(), &Tray::secondaryActivated);
        const QString item = u"org.kde.StatusNotifierItem"_s;

        callItem(u"/StatusNotifierItem"_s, item, u"Activate"_s, {1300, 12});
        callItem(u"/StatusNotifierItem"_s, item, u"SecondaryActivate"_s, {1300, 12});
        callItem(u"/StatusNotifierItem"_s, item, u"Scroll"_s, {1, u"vertical"_s});

        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated[0][0].toPoint(), QPoint(1300, 12));
        QCOMPARE(secondary.count(), 1);
    }

    void theMenuIsReadAndUsedOverTheBus()
    {
        const TrayWatcher watcher(m_bus->connection(u"host"_s));
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_VERIFY(m_tray->isPresent());
        m_tray->show(running());
        const QSignalSpy chosen(m_tray.get(), &Tray::chosen);

        const QDBusMessage reply = callMenu(u"GetLayout"_s, {0, -1, QStringList()});
        QCOMPARE(reply.signature(), u"u(ia{sv}av)"_s);
        const auto root = qdbus_cast<TrayMenuNode>(reply.arguments().value(1));
        QStringList labels;
        for (const QDBusVariant &child : root.children) {
            const auto row = qdbus_cast<TrayMenuNode>(child.variant());
            labels.append(row.properties.value(u"label"_s, row.properties.value(u"type"_s)).toString());
        }
        QCOMPARE(labels, QStringList({u"Open Pelko"_s, u"Pause"_s, u"separator"_s, u"Quit"_s}));

        callMenu(u"Event"_s, {2, u"hovered"_s, QVariant::fromValue(QDBusVariant(0)), 0U});
        callMenu(u"Event"_s, {99, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0U});
        QCOMPARE(chosen.count(), 0);
        callMenu(u"Event"_s, {2, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0U});
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen[0][0].value<TrayMenuRow::Command>(), TrayMenuRow::Command::startOrPause);
    }

    void aMenuThatChangesIsReadAgain()
    {
        const TrayWatcher watcher(m_bus->connection(u"host"_s));
        m_tray->connectTo(m_bus->connection(u"pelko"_s));
        QTRY_VERIFY(m_tray->isPresent());
        m_tray->show(running());
        const uint before = callMenu(u"GetLayout"_s, {0, -1, QStringList()}).arguments().value(0).toUInt();

        TrayIconState paused = running();
        paused.menu[1].text = u"Start"_s;
        m_tray->show(paused);

        QVERIFY(callMenu(u"GetLayout"_s, {0, -1, QStringList()}).arguments().value(0).toUInt() > before);
        const QDBusMessage start = callMenu(u"GetProperty"_s, {2, u"label"_s});
        QCOMPARE(start.arguments().value(0).value<QDBusVariant>().variant().toString(), u"Start"_s);
    }
};

PELKO_TEST(TestTray)
#include "tst_Tray.moc"
