#pragma once

#include "Editor/IdListModel.h"
#include "Tasks/TaskList.h"

/// One line of the list: the heading of a document's tasks, or a task.
struct TaskRow {
    enum class Kind { heading, task };

    Kind kind = Kind::heading;
    QUuid docID = {};
    /// Of a task only.
    QUuid blockID = {};
    QUuid todoID = {};
    /// The document's title in capitals, or what there is to do.
    QString text = {};
    bool done = false;

    bool operator==(const TaskRow &) const = default;
};

inline QUuid rowKey(const TaskRow &row)
{
    return row.kind == TaskRow::Kind::heading ? row.docID : row.todoID;
}

/// Each group's heading, and its tasks below it.
QList<TaskRow> taskRows(const QList<TaskGroup> &groups);

/// The list of the tasks card for QML.
class TaskListModel : public IdListModel<TaskRow>
{
    Q_OBJECT

public:
    enum Role { RowKindRole = Qt::UserRole, DocIDRole, BlockIDRole, TodoIDRole, TextRole, DoneRole };

    using IdListModel::IdListModel;

    /// The row of the first task from that row on, downwards or, with a step of -1, upwards; -1 for none.
    int taskFrom(int row, int step) const;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QList<int> changedRoles(const TaskRow &before, const TaskRow &after) const override;
};
