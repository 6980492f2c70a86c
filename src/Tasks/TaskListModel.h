#pragma once

#include "ListModels/IdListModel.h"
#include "Tasks/TaskGroups.h"

/// One row of the list: a task, or the heading above the tasks of a document.
struct TaskListRow {
    enum class Kind { heading, task };

    Kind kind = Kind::heading;
    QUuid docID = {};
    /// Set for tasks only.
    QUuid blockID = {};
    QUuid todoID = {};
    /// The document's title in capitals, or the text of the task.
    QString text = {};
    bool done = false;

    bool operator==(const TaskListRow &) const = default;
};

inline QUuid rowKey(const TaskListRow &row)
{
    return row.kind == TaskListRow::Kind::heading ? row.docID : row.todoID;
}

/// Returns the heading and the tasks of each group.
QList<TaskListRow> taskRows(const QList<TaskGroup> &groups);

/// The rows of the tasks card for QML.
class TaskListModel : public IdListModel<TaskListRow>
{
    Q_OBJECT

public:
    enum Role { RowKindRole = Qt::UserRole, DocIDRole, BlockIDRole, TodoIDRole, TextRole, DoneRole };

    using IdListModel::IdListModel;

    /// Returns the first task at or after `row`, or before it if `step` is -1; -1 for none.
    int taskFrom(int row, int step) const;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QList<int> changedRoles(const TaskListRow &before, const TaskListRow &after) const override;
};
