#pragma once

#include "ListModels/RowDiff.h"

#include <QAbstractListModel>

/// A list of values for QML. It is given the whole new list and finds the changes itself. Rows are identified
/// by their `rowKey`: a moved row is announced as a move, and a changed one only with the roles that differ,
/// so that delegates keep caret and focus.
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
    /// Replaces all rows, for lists that share hardly any row with the one before. The model is not reset:
    /// after a reset, a ListView that is creating a delegate asks for its old index, which may be out of
    /// range.
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

    /// Replaces a row by one with the same key and announces the roles that differ.
    void update(qsizetype row, const Row &after)
    {
        const QList<int> roles = changedRoles(m_rows.at(row), after);
        if (roles.isEmpty())
            return;
        m_rows[row] = after;
        const QModelIndex changed = index(static_cast<int>(row));
        Q_EMIT dataChanged(changed, changed, roles);
    }

    /// Returns the roles in which two rows of the same key differ.
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
