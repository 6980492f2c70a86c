#pragma once

#include <QDBusConnection>
#include <QProcess>

/// A bus that nobody else is on.
class PrivateBus
{
public:
    explicit PrivateBus(const QString &configuration = QStringLiteral("--session"))
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {configuration, QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        m_daemon.waitForReadyRead();
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus() { end(); }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    void end()
    {
        for (const QString &name : std::as_const(m_names))
            QDBusConnection::disconnectFromBus(name);
        m_names.clear();
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    QString address() const { return m_address; }

    QDBusConnection connection(const QString &name)
    {
        m_names.append(name);
        return QDBusConnection::connectToBus(m_address, name);
    }

    void kill()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};
