#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QImage>
#include <QVariantMap>

// The D-Bus structures of the two interfaces of a tray item.

/// "(iiay)": pixels as 32-bit ARGB in network byte order.
struct TrayPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;

    static TrayPixmap of(const QImage &image);
};
using TrayPixmaps = QList<TrayPixmap>;

/// "(sa(iiay)ss)"
struct TrayToolTip {
    QString iconName;
    TrayPixmaps icon;
    QString title;
    QString text;
};

/// "(ia{sv})"
struct TrayMenuProperties {
    int id = 0;
    QVariantMap properties;
};

/// "(ia{sv}av)"
struct TrayMenuNode {
    int id = 0;
    QVariantMap properties;
    QList<QDBusVariant> children;
};

/// "(isvu)"
struct TrayMenuEvent {
    int id = 0;
    QString eventID;
    QDBusVariant data;
    uint timestamp = 0;
};

Q_DECLARE_METATYPE(TrayPixmap)
Q_DECLARE_METATYPE(TrayToolTip)
Q_DECLARE_METATYPE(TrayMenuProperties)
Q_DECLARE_METATYPE(TrayMenuNode)
Q_DECLARE_METATYPE(TrayMenuEvent)

QDBusArgument &operator<<(QDBusArgument &argument, const TrayPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayToolTip &toolTip);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuProperties &properties);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuProperties &properties);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuNode &node);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuNode &node);
QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuEvent &event);

/// Registers all of these types with the bus. Further calls have no effect.
void registerTrayTypes();
