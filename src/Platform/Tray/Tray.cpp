#include "Platform/Tray/Tray.h"

#include "Platform/Tray/StatusNotifierItem.h"
#include "Platform/Tray/TrayMenu.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

using namespace Qt::StringLiterals;

namespace
{
const QString watcherService = u"org.kde.StatusNotifierWatcher"_s;
const QString watcherPath = u"/StatusNotifierWatcher"_s;

/// Calls `then` with the reply, as long as `owner` lives.
template <typename Then>
void call(const QDBusConnection &bus, QObject *owner, const QDBusMessage &message, const Then &then)
{
    auto *pending = new QDBusPendingCallWatcher(bus.asyncCall(message), owner);
    QObject::connect(pending, &QDBusPendingCallWatcher::finished, owner, [pending, then] {
        pending->deleteLater();
        then(pending->reply());
    });
}

QDBusMessage ownerOf(const QString &service)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"GetNameOwner"_s);
    message << service;
    return message;
}

bool failed(const QDBusMessage &reply)
{
    return reply.type() != QDBusMessage::ReplyMessage;
}
} // namespace

const QString Tray::itemPath = u"/StatusNotifierItem"_s;
const QString Tray::menuPath = u"/MenuBar"_s;

Tray::Tray(QObject *parent)
    : QObject(parent)
    , m_bus(QString()) // not connected
    , m_item(new StatusNotifierItem(*this))
    , m_menuObject(new QObject(this))
    , m_menu(new TrayMenu(*this, m_menuObject))
    , m_serviceName(u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid()))
{
    registerTrayTypes();
}

void Tray::connectTo(const QDBusConnection &bus)
{
    m_bus = bus;
    if (!m_bus.isConnected())
        return;
    m_bus.registerObject(itemPath, this, QDBusConnection::ExportAdaptors);
    m_bus.registerObject(menuPath, m_menuObject, QDBusConnection::ExportAdaptors);
    m_bus.registerService(m_serviceName);
    m_bus.connect({}, u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s,
                  this, SLOT(withdraw()));
    for (const QString &signal : {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        m_bus.connect(watcherService, watcherPath, watcherService, signal, this, SLOT(askForHost()));
    const auto *watcher =
        new QDBusServiceWatcher(watcherService, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    // The name may pass from one owner to another directly, without serviceRegistered or serviceUnregistered.
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) {
                withdraw();
                if (!newOwner.isEmpty())
                    registerWithWatcher();
            });
    registerWithWatcher();
}

void Tray::show(const TrayIconState &state)
{
    m_item->show(state);
    m_menu->show(state.menu);
}

void Tray::registerWithWatcher()
{
    m_registration = std::make_unique<QObject>(); // drops replies to calls for an earlier owner
    m_isRegistered = false;
    QDBusMessage message = QDBusMessage::createMethodCall(watcherService, watcherPath, watcherService,
                                                          u"RegisterStatusNotifierItem"_s);
    message << m_serviceName;
    call(m_bus, m_registration.get(), message, [this](const QDBusMessage &reply) {
        if (failed(reply)) {
            setPresent(false);
            return;
        }
        m_isRegistered = true;
        askForHost();
        askWhetherLabelsAreDrawn();
    });
}

void Tray::askForHost()
{
    if (!m_isRegistered) // hosts read all properties after the registration
        return;
    QDBusMessage message = QDBusMessage::createMethodCall(watcherService, watcherPath,
                                                          u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message << watcherService << u"IsStatusNotifierHostRegistered"_s;
    call(m_bus, m_registration.get(), message, [this](const QDBusMessage &reply) {
        const auto answer = reply.arguments().value(0).value<QDBusVariant>();
        setPresent(!failed(reply) && answer.variant().toBool());
    });
}

void Tray::askWhetherLabelsAreDrawn()
{
    // There is no property for this. GNOME Shell's tray is known to draw labels.
    call(m_bus, m_registration.get(), ownerOf(u"org.gnome.Shell"_s), [this](const QDBusMessage &shell) {
        call(m_bus, m_registration.get(), ownerOf(watcherService), [this, shell](const QDBusMessage &tray) {
            const bool isSame = !failed(shell) && !failed(tray) && shell.arguments() == tray.arguments();
            m_item->setLabels(isSame ? TrayLabels::drawn : TrayLabels::ignored);
        });
    });
}

void Tray::withdraw()
{
    m_registration.reset();
    m_isRegistered = false;
    setPresent(false);
}

void Tray::setPresent(bool present)
{
    if (std::exchange(m_isPresent, present) != present)
        Q_EMIT isPresentChanged();
}
