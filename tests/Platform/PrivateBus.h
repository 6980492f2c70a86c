#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>

/// A session bus for one test, separate from the user's bus and the services installed on it.
class PrivateBus
{
public:
    /// Differences from a bus that starts no services and has no restrictions.
    struct Configuration {
        QStringList installedServices = {};         // names; the installed service files are used
        QMap<QString, QByteArray> ownServices = {}; // the command by the name
        QByteArray policy = {};                     // further rules, as XML
    };

    PrivateBus() : PrivateBus(Configuration()) {}
    explicit PrivateBus(const Configuration &configuration)
    {
        for (const QString &name : configuration.installedServices) {
            const QString file = name + QStringLiteral(".service");
            QFile::link(QStringLiteral("/usr/share/dbus-1/services/") + file, m_folder.filePath(file));
        }
        for (const auto &[name, command] : configuration.ownServices.asKeyValueRange())
            write(name + QStringLiteral(".service"),
                  "[D-BUS Service]\nName=" + name.toUtf8() + "\nExec=" + command + '\n');
        write(QStringLiteral("session.conf"),
              "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><servicedir>" +
                  m_folder.path().toLocal8Bit() +
                  "</servicedir><policy context=\"default\">"
                  "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
                  "<allow own=\"*\"/>" +
                  configuration.policy +
                  "</policy>"
                  // The limits of an ordinary session bus; dbus-daemon's defaults are for the system bus.
                  "<limit name=\"max_incoming_bytes\">1000000000</limit>"
                  "<limit name=\"max_outgoing_bytes\">1000000000</limit>"
                  "<limit name=\"max_message_size\">1000000000</limit>"
                  "<limit name=\"max_replies_per_connection\">50000</limit></busconfig>");
        start();
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
    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(m_folder.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
    }

    void start()
    {
        // Not with QProcess, because the thread sanitizer does not support how it starts processes.
        const QByteArray command =
            "dbus-daemon --config-file=" + m_folder.filePath(QStringLiteral("session.conf")).toLocal8Bit() +
            " --fork --print-address=1 --print-pid=1";
        std::FILE *output = ::popen(command.constData(), "r");
        char line[512] = {};
        if (output && std::fgets(line, sizeof line, output))
            m_address = QString::fromUtf8(line).trimmed();
        if (output && std::fgets(line, sizeof line, output))
            m_process = QByteArray(line).trimmed().toInt();
        if (output)
            ::pclose(output);
    }

    QTemporaryDir m_folder;
    pid_t m_process = 0;
    QString m_address;
    QStringList m_names;
};
