#pragma once

#include <QDBusConnection>

#include <csignal>
#include <cstdio>

/// A bus that nobody else is on.
class PrivateBus
{
public:
    explicit PrivateBus(const QString &configuration = QStringLiteral("--session"))
    {
        // Not with QProcess, whose way to start a process the thread sanitizer does not follow.
        const QByteArray command =
            "dbus-daemon " + configuration.toLocal8Bit() + " --fork --print-address=1 --print-pid=1";
        std::FILE *output = ::popen(command.constData(), "r");
        char line[512] = {};
        if (output && std::fgets(line, sizeof line, output))
            m_address = QString::fromUtf8(line).trimmed();
        if (output && std::fgets(line, sizeof line, output))
            m_process = QByteArray(line).trimmed().toInt();
        if (output)
            ::pclose(output);
    }
    ~PrivateBus() { end(); }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    void end()
    {
        for (const QString &name : std::as_const(m_names))
            QDBusConnection::disconnectFromBus(name);
        m_names.clear();
        kill();
    }

    QString address() const { return m_address; }

    QDBusConnection connection(const QString &name)
    {
        m_names.append(name);
        return QDBusConnection::connectToBus(m_address, name);
    }

    void kill()
    {
        if (m_process > 0)
            ::kill(m_process, SIGKILL);
        m_process = 0;
    }

private:
    pid_t m_process = 0;
    QString m_address;
    QStringList m_names;
};
