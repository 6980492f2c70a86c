#include "Platform/Tray/TrayMenu.h"

#include "Platform/Tray/Tray.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

TrayMenu::TrayMenu(Tray &tray, QObject *exported) : QDBusAbstractAdaptor(exported), m_tray(tray) {}

void TrayMenu::show(const QList<TrayMenuRow> &rows)
{
    if (m_rows == rows)
        return;
    m_rows = rows;
    Q_EMIT LayoutUpdated(++m_revision, 0);
}

uint TrayMenu::GetLayout(int parentID, int depth, const QStringList &, TrayMenuNode &layout)
{
    layout = {.id = parentID, .properties = properties(parentID), .children = {}};
    if (parentID == 0 && depth != 0) {
        for (int id = 1; id <= m_rows.size(); ++id) {
            const TrayMenuNode row{.id = id, .properties = properties(id), .children = {}};
            layout.children.append(QDBusVariant(QVariant::fromValue(row)));
        }
    }
    return m_revision;
}

QList<TrayMenuProperties> TrayMenu::GetGroupProperties(const QList<int> &ids, const QStringList &)
{
    QList<TrayMenuProperties> found;
    for (const int id : ids) {
        if (id == 0 || isRow(id))
            found.append({.id = id, .properties = properties(id)});
    }
    return found;
}

QDBusVariant TrayMenu::GetProperty(int id, const QString &name)
{
    // D-Bus has no null: a missing property is returned as an empty string.
    return QDBusVariant(properties(id).value(name, QString()));
}

void TrayMenu::Event(int id, const QString &eventID, const QDBusVariant &, uint)
{
    if (eventID == "clicked"_L1 && isRow(id))
        Q_EMIT m_tray.chosen(m_rows[id - 1].command);
}

QList<int> TrayMenu::EventGroup(const QList<TrayMenuEvent> &events)
{
    QList<int> unknown;
    for (const TrayMenuEvent &event : events) {
        if (!isRow(event.id) && event.id != 0)
            unknown.append(event.id);
        Event(event.id, event.eventID, event.data, event.timestamp);
    }
    return unknown;
}

QString TrayMenu::textDirection() const
{
    return QGuiApplication::isRightToLeft() ? u"rtl"_s : u"ltr"_s;
}

bool TrayMenu::AboutToShow(int)
{
    return false; // the menu's contents are always current
}

QList<int> TrayMenu::AboutToShowGroup(const QList<int> &ids, QList<int> &unknownIDs)
{
    for (const int id : ids) {
        if (!isRow(id) && id != 0)
            unknownIDs.append(id);
    }
    return {};
}

QVariantMap TrayMenu::properties(int id) const
{
    if (id == 0)
        return {{u"children-display"_s, u"submenu"_s}};
    if (!isRow(id))
        return {};
    const TrayMenuRow &row = m_rows[id - 1];
    if (row.command == TrayMenuRow::Command::none)
        return {{u"type"_s, u"separator"_s}};
    return {{u"label"_s, row.text}, {u"enabled"_s, true}, {u"visible"_s, true}};
}
