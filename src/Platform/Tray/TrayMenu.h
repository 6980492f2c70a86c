#pragma once

#include "Platform/Tray/TrayTypes.h"
#include "Timers/TrayIconState.h"

#include <QDBusAbstractAdaptor>

class Tray;

/// The menu of the tray's item as the bus knows it. It has one level: the rows are the children of entry 0
/// and are numbered from 1. The names are those of the bus.
class TrayMenu : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    TrayMenu(Tray &tray, QObject *exported);

    void show(const QList<TrayMenuRow> &rows);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    uint GetLayout(int parentID, int depth, const QStringList &names, TrayMenuNode &layout);
    QList<TrayMenuProperties> GetGroupProperties(const QList<int> &ids, const QStringList &names);
    QDBusVariant GetProperty(int id, const QString &name);
    void Event(int id, const QString &eventID, const QDBusVariant &data, uint timestamp);
    QList<int> EventGroup(const QList<TrayMenuEvent> &events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &unknownIDs);

Q_SIGNALS:
    void LayoutUpdated(uint revision, int parentID);

private:
    bool isRow(int id) const { return id >= 1 && id <= m_rows.size(); }
    QVariantMap properties(int id) const;

    Tray &m_tray;
    QList<TrayMenuRow> m_rows;
    uint m_revision = 1;
};
