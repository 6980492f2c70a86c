#include "Platform/Tray/TrayTypes.h"

#include <QDBusMetaType>
#include <QtEndian>

TrayPixmap TrayPixmap::of(const QImage &image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    TrayPixmap pixmap{pixels.width(), pixels.height(),
                      QByteArray(qsizetype(4) * pixels.width() * pixels.height(), Qt::Uninitialized)};
    for (int y = 0; y < pixels.height(); ++y) {
        const auto *line = reinterpret_cast<const quint32 *>(pixels.constScanLine(y));
        qToBigEndian<quint32>(line, pixels.width(), pixmap.bytes.data() + qsizetype(4) * y * pixels.width());
    }
    return pixmap;
}

// NOLINTBEGIN(bugprone-return-const-ref-from-parameter): the bus wants its operators in this form

QDBusArgument &operator<<(QDBusArgument &argument, const TrayPixmap &pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayPixmap &pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayToolTip &toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayToolTip &toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuProperties &properties)
{
    argument.beginStructure();
    argument << properties.id << properties.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuProperties &properties)
{
    argument.beginStructure();
    argument >> properties.id >> properties.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuNode &node)
{
    argument.beginStructure();
    argument << node.id << node.properties << node.children;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuNode &node)
{
    argument.beginStructure();
    argument >> node.id >> node.properties >> node.children;
    argument.endStructure();
    return argument;
}

QDBusArgument &operator<<(QDBusArgument &argument, const TrayMenuEvent &event)
{
    argument.beginStructure();
    argument << event.id << event.eventID << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayMenuEvent &event)
{
    argument.beginStructure();
    argument >> event.id >> event.eventID >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

// NOLINTEND(bugprone-return-const-ref-from-parameter)

void registerTrayTypes()
{
    qDBusRegisterMetaType<TrayPixmap>();
    qDBusRegisterMetaType<TrayPixmaps>();
    qDBusRegisterMetaType<TrayToolTip>();
    qDBusRegisterMetaType<TrayMenuProperties>();
    qDBusRegisterMetaType<QList<TrayMenuProperties>>();
    qDBusRegisterMetaType<TrayMenuNode>();
    qDBusRegisterMetaType<TrayMenuEvent>();
    qDBusRegisterMetaType<QList<TrayMenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
    qDBusRegisterMetaType<QList<QDBusVariant>>();
}
