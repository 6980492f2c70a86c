#pragma once

#include "ListModels/RowDiff.h"

#include <QAbstractListModel>

/// A list of value rows for QML that is handed whole and finds out by itself what changed. Rows are told
/// apart by their `rowKey`: a row that moves is announced as a move and one that changes in place only with
/// the roles that differ, so delegates, and with them caret and focus, live on.
template <typename Row>
class IdListModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    const QList<Row> &rows() const { return m_rows; }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    void publish(QList<Row> rows)
    {
        const auto changes = RowDiff::between(keys(m_rows), keys(rows));
        if (!changes) {
            replaceAll(std::move(rows));
            return;
        }
        for (const RowChange &change : *changes)
            apply(change, rows);
        for (qsizetype row = 0; row < rows.size(); ++row)
            update(row, rows.at(row));
    }

protected:
    /// For rows that have nothing to do with those before. Not as a reset of the model: after one, a ListView
    /// that is creating a delegate ahead asks for its old index, which may be out of range by then.
    void replaceAll(QList<Row> rows)
    {
        if (!m_rows.isEmpty()) {
            beginRemoveRows({}, 0, rowCount() - 1);
            m_rows.clear();
            endRemoveRows();
        }
        if (rows.isEmpty())
            return;
        beginInsertRows({}, 0, static_cast<int>(rows.size()) - 1);
        m_rows = std::move(rows);
        endInsertRows();
    }

    /// Puts a row of the same key in the place of another and tells what differs.
    void update(qsizetype row, const Row &after)
    {
        const QList<int> roles = changedRoles(m_rows.at(row), after);
        if (roles.isEmpty())
            return;
        m_rows[row] = after;
        const QModelIndex changed = index(static_cast<int>(row));
        Q_EMIT dataChanged(changed, changed, roles);
    }

    /// The roles in which two rows of the same key differ; empty when they are equal.
    virtual QList<int> changedRoles(const Row &before, const Row &after) const = 0;

private:
    static auto keys(const QList<Row> &rows)
    {
        QList<decltype(rowKey(rows.first()))> result;
        result.reserve(rows.size());
        for (const Row &row : rows)
            result.append(rowKey(row));
        return result;
    }

    void apply(const RowChange &change, const QList<Row> &rows)
    {
        const int first = static_cast<int>(change.row);
        const int last = static_cast<int>(change.row + change.count - 1);
        switch (change.kind) {
        case RowChange::Kind::remove:
            beginRemoveRows({}, first, last);
            m_rows.remove(first, change.count);
            endRemoveRows();
            break;
        case RowChange::Kind::move: {
            const int to = static_cast<int>(change.destination);
            beginMoveRows({}, first, first, {}, to > first ? to + 1 : to);
            m_rows.move(first, to);
            endMoveRows();
            break;
        }
        case RowChange::Kind::insert:
            beginInsertRows({}, first, last);
            for (int row = first; row <= last; ++row)
                m_rows.insert(row, rows.at(row));
            endInsertRows();
            break;
        }
    }

    QList<Row> m_rows;
};
