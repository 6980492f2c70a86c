#include "Editor/TodoListModel.h"

#include <QScopedValueRollback>

#include <cmath>
#include <utility>

namespace
{
// The smallest scrolling distance that updates the rows.
constexpr qreal step = 200;
constexpr qreal margin = 400;
} // namespace

TodoListModel::TodoListModel(const QUuid &blockID, QObject *parent) : IdListModel(parent), m_blockID(blockID)
{
}

void TodoListModel::publish(const QList<TodoItem> &items)
{
    m_items = items;
    publishRows();
}

void TodoListModel::setView(qreal top, qreal bottom, qreal usualHeight)
{
    const qreal from = std::floor((top - margin) / step) * step;
    const qreal to = std::ceil((bottom + margin) / step) * step;
    if (m_top == from && m_bottom == to && m_usualHeight == usualHeight)
        return;
    m_top = from;
    m_bottom = to;
    m_usualHeight = usualHeight;
    if (m_items.size() > shortList)
        publishRows();
}

void TodoListModel::keep(const TextAddress &entry)
{
    if (entry.partID == m_kept)
        return;
    m_kept = entry.partID;
    if (m_items.size() > shortList)
        publishRows();
}

void TodoListModel::setHeight(const TextAddress &entry, qreal height)
{
    m_heights.insert(entry.partID.value_or(QUuid()), height);
}

bool TodoListModel::isShown(const TodoItem &item, qreal top, qreal bottom) const
{
    const bool isNear = bottom >= m_top && top <= m_bottom;
    return isNear || m_items.size() <= shortList || item.id == m_kept;
}

void TodoListModel::publishRows()
{
    // Adding or removing rows can scroll the view that asks for them.
    m_isStale = true;
    if (m_isPublishing)
        return;
    const QScopedValueRollback publishing(m_isPublishing, true);
    const std::pair before(m_isEmpty, m_gapBelow);
    while (std::exchange(m_isStale, false))
        IdListModel::publish(shownRows());
    m_isEmpty = m_items.isEmpty();
    if (before != std::pair(m_isEmpty, m_gapBelow))
        Q_EMIT entriesChanged();
}

/// Also computes the height of the gap below.
QList<TodoEntry> TodoListModel::shownRows()
{
    QList<TodoEntry> rows;
    qreal top = 0;
    qreal shownEnd = 0;
    for (const TodoItem &item : std::as_const(m_items)) {
        const qreal bottom = top + m_heights.value(item.id, m_usualHeight);
        if (isShown(item, top, bottom)) {
            rows.append({.item = item, .gap = top - shownEnd});
            shownEnd = bottom;
        }
        top = bottom;
    }
    m_gapBelow = top - shownEnd;
    return rows;
}

QVariant TodoListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const TodoEntry &entry = rows().at(index.row());
    switch (role) {
    case AddressRole:
        return QVariant::fromValue(TextAddress{.blockID = m_blockID, .partID = entry.item.id});
    case TextRole:
        return entry.item.text;
    case DoneRole:
        return entry.item.done;
    case GapRole:
        return entry.gap;
    default:
        return {};
    }
}

QHash<int, QByteArray> TodoListModel::roleNames() const
{
    return {{AddressRole, "address"}, {TextRole, "text"}, {DoneRole, "done"}, {GapRole, "gap"}};
}

QList<int> TodoListModel::changedRoles(const TodoEntry &before, const TodoEntry &after) const
{
    QList<int> roles;
    if (before.item.text != after.item.text)
        roles.append(TextRole);
    if (before.item.done != after.item.done)
        roles.append(DoneRole);
    if (before.gap != after.gap)
        roles.append(GapRole);
    return roles;
}
