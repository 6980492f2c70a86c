#pragma once

#include "ListModels/IdListModel.h"
#include "Tasks/TaskGroups.h"

/// One line of the list: the heading of a document's tasks, or a task.
struct TaskListRow {
    enum class Kind { heading, task };

    Kind kind = Kind::heading;
    QUuid docID = {};
    /// Of a task only.
    QUuid blockID = {};
    QUuid todoID = {};
    /// The document's title in capitals, or what there is to do.
    QString text = {};
    bool done = false;

    bool operator==(const TaskListRow &) const = default;
};

inline QUuid rowKey(const TaskListRow &row)
{
    return row.kind == TaskListRow::Kind::heading ? row.docID : row.todoID;
}

/// Each group's heading, and its tasks below it.
QList<TaskListRow> taskRows(const QList<TaskGroup> &groups);

/// The list of the tasks card for QML.
class TaskListModel : public IdListModel<TaskListRow>
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
    QList<int> changedRoles(const TaskListRow &before, const TaskListRow &after) const override;
};
