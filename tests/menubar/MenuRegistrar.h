#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QMutex>
#include <QThread>

/// The part of a desktop that keeps the menu bars of all windows. It answers on a thread of its own, because
/// a window waits for it.
class MenuRegistrar : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.AppMenu.Registrar")

public:
    /// Where the menu bar of a window is.
    struct Place {
        QString service;
        QString path;
    };

    explicit MenuRegistrar(QDBusConnection bus)
    {
        moveToThread(&m_thread);
        bus.registerObject(QStringLiteral("/com/canonical/AppMenu/Registrar"), this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("com.canonical.AppMenu.Registrar"));
    }
    ~MenuRegistrar() override
    {
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(MenuRegistrar)

    /// From here on windows get their answer. Waits for an application, as threads do.
    void start() { m_thread.start(); }

    /// Of the window that came last; empty when it has gone.
    Place place() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_place;
    }

public Q_SLOTS:
    void RegisterWindow(uint /*window*/, const QDBusObjectPath &menu)
    {
        const QMutexLocker lock(&m_mutex);
        m_place = {message().service(), menu.path()};
    }
    void UnregisterWindow(uint /*window*/)
    {
        const QMutexLocker lock(&m_mutex);
        m_place = {};
    }

private:
    QThread m_thread;
    mutable QMutex m_mutex;
    Place m_place;
};
