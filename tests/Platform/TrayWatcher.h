#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>

/// A StatusNotifierWatcher with the answer that a test sets. It takes the name over from another watcher.
class TrayWatcher : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER hasHost)

public:
    enum class Registration { accepted, refused, unanswered };

    explicit TrayWatcher(const QDBusConnection &bus, Registration answer = Registration::accepted)
        : m_bus(bus)
        , m_answer(answer)
    {
        m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                             QDBusConnection::ExportAllContents);
        m_bus.interface()->registerService(name(), QDBusConnectionInterface::ReplaceExistingService,
                                           QDBusConnectionInterface::AllowReplacement);
    }
    ~TrayWatcher() override
    {
        m_bus.unregisterService(name());
        m_bus.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
    }
    Q_DISABLE_COPY_MOVE(TrayWatcher)

    static QString name() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }

    void setHost(bool isThere)
    {
        hasHost = isThere;
        isThere ? Q_EMIT StatusNotifierHostRegistered() : Q_EMIT StatusNotifierHostUnregistered();
    }

    /// Answers the pending registrations and all later ones.
    void answer(Registration answer)
    {
        m_answer = answer;
        for (const QDBusMessage &message : std::exchange(m_unanswered, {}))
            reply(message);
    }

    bool hasAccepted() const { return m_hasAccepted; }

    bool hasHost = true;
    QStringList items;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service)
    {
        items.append(service);
        setDelayedReply(true);
        reply(message());
    }

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    void reply(const QDBusMessage &message)
    {
        m_hasAccepted = m_answer == Registration::accepted;
        if (m_hasAccepted)
            m_bus.send(message.createReply());
        else if (m_answer == Registration::refused)
            m_bus.send(message.createErrorReply(QDBusError::Failed, QStringLiteral("no")));
        else
            m_unanswered.append(message);
    }

    QDBusConnection m_bus;
    Registration m_answer;
    bool m_hasAccepted = false;
    QList<QDBusMessage> m_unanswered;
};
