#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

#include <functional>

/// A calendar server on the bus with the answers that a test sets.
class FakeEvolution : public QDBusVirtualObject
{
public:
    using Interfaces = QMap<QString, QVariantMap>;
    using Objects = QMap<QDBusObjectPath, Interfaces>;
    /// Returns std::nullopt to leave the call unanswered.
    using Answer = std::function<std::optional<QDBusMessage>(const QDBusMessage &)>;

    explicit FakeEvolution(QDBusConnection bus) : m_bus(std::move(bus))
    {
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
        m_bus.registerVirtualObject(QStringLiteral("/org/gnome/evolution/dataserver"), this,
                                    QDBusConnection::SubPath);
        m_bus.registerService(QStringLiteral("org.gnome.evolution.dataserver.Sources5"));
        m_bus.registerService(QStringLiteral("org.gnome.evolution.dataserver.Calendar8"));
    }

    QMap<QString, Answer> answers; // by the name of the method
    QStringList asked;

    void addSource(const QString &uid, const QString &text)
    {
        m_sources[QDBusObjectPath(QStringLiteral("/s/%1").arg(m_sources.size()))] = {
            {QStringLiteral("org.gnome.evolution.dataserver.Source"),
             {{QStringLiteral("UID"), uid}, {QStringLiteral("Data"), text}}}};
    }
    void addCalendar(const QString &uid, const QStringList &events)
    {
        addSource(uid, QStringLiteral(
                           "\n[Data Source]\nDisplayName=x\nEnabled=true\nParent=local\n\n[Calendar]\n"));
        m_events[uid] = events;
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        asked << message.member();
        message.setDelayedReply(true);
        const auto answer =
            answers.contains(message.member()) ? answers[message.member()](message) : ordinaryAnswer(message);
        if (answer)
            m_bus.send(*answer);
        return true;
    }

    std::optional<QDBusMessage> ordinaryAnswer(const QDBusMessage &message)
    {
        const QString method = message.member();
        const QString uid = message.path().section(u'/', -1);
        if (method == QLatin1String("GetManagedObjects"))
            return message.createReply(QVariant::fromValue(m_sources));
        if (method == QLatin1String("OpenCalendar")) {
            const QString opened = message.arguments().first().toString();
            return message.createReply(
                {QStringLiteral("/org/gnome/evolution/dataserver/") + opened, m_bus.baseService()});
        }
        if (method == QLatin1String("GetObjectList"))
            return message.createReply(QVariant(m_events[uid]));
        if (method == QLatin1String("GetObject"))
            return message.createReply(
                m_events[uid].filter(message.arguments().first().toString()).join(u'\n'));
        return message.createReply(QVariant(QStringList()));
    }

private:
    QDBusConnection m_bus;
    Objects m_sources;
    QMap<QString, QStringList> m_events;
};
