#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QMutex>
#include <QThread>

/// The desktop's registrar of menu bars. It replies on its own thread, because windows wait for it.
class MenuRegistrar : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.AppMenu.Registrar")

public:
    /// The bus address of the menu bar of a window.
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

    /// Starts to reply. Needs an application, as threads do.
    void start() { m_thread.start(); }

    /// Returns that of the last registered window; empty after it was closed.
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
