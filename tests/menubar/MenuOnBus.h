#pragma once

#include "menubar/MenuRegistrar.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QTest>

/// A row of a menu on the bus, with the rows of its submenu.
struct RowOnBus {
    int id = 0;
    QVariantMap properties = {};
    QList<RowOnBus> rows = {};

    bool isSeparator() const { return properties[QStringLiteral("type")] == QStringLiteral("separator"); }
    QString label() const { return properties[QStringLiteral("label")].toString(); }
    bool isEnabled() const { return properties.value(QStringLiteral("enabled"), true).toBool(); }
    bool isTickable() const { return properties.contains(QStringLiteral("toggle-type")); }
    bool isTicked() const { return properties[QStringLiteral("toggle-state")].toInt() == 1; }
};
Q_DECLARE_METATYPE(RowOnBus)

inline QDBusArgument &operator<<(QDBusArgument &argument, const RowOnBus & /*row*/)
{
    argument.beginStructure();
    argument << 0 << QVariantMap();
    argument.beginArray(qMetaTypeId<QDBusVariant>());
    argument.endArray();
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, RowOnBus &row)
{
    argument.beginStructure();
    argument >> row.id >> row.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant below;
        argument >> below;
        row.rows.append(qdbus_cast<RowOnBus>(below.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

/// The menu bar of a window, read and used over the bus like a desktop does.
class MenuOnBus
{
public:
    MenuOnBus(const QDBusConnection &bus, const MenuRegistrar::Place &place) : m_bus(bus), m_place(place)
    {
        qDBusRegisterMetaType<RowOnBus>();
    }

    QList<RowOnBus> menus() const
    {
        const QDBusPendingReply<uint, RowOnBus> layout =
            call(QStringLiteral("GetLayout"), {0, -1, QStringList()});
        return layout.argumentAt<1>().rows;
    }

    QList<RowOnBus> rows() const
    {
        QList<RowOnBus> rows;
        for (const RowOnBus &menu : menus())
            rows += menu.rows;
        return rows;
    }

    /// Returns the labels of the rows for which `question` returns true.
    template <typename Question>
    QStringList labels(Question question) const
    {
        QStringList labels;
        for (const RowOnBus &row : rows()) {
            if (!row.isSeparator() && (row.*question)())
                labels << row.label();
        }
        return labels;
    }

    void choose(const QString &label) const
    {
        for (const RowOnBus &row : rows()) {
            if (row.label() == label)
                call(QStringLiteral("Event"),
                     {row.id, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(0)), 0U});
        }
    }

private:
    /// Calls a method without blocking, because the program that replies may be this one.
    QDBusPendingCall call(const QString &method, const QVariantList &arguments) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(
            m_place.service, m_place.path, QStringLiteral("com.canonical.dbusmenu"), method);
        message.setArguments(arguments);
        QDBusPendingCall answer = m_bus.asyncCall(message);
        [&] { QTRY_VERIFY(answer.isFinished()); }();
        return answer;
    }

    QDBusConnection m_bus;
    MenuRegistrar::Place m_place;
};
