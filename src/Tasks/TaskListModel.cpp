#include "Tasks/TaskListModel.h"

using namespace Qt::StringLiterals;

QList<TaskListRow> taskRows(const QList<TaskGroup> &groups)
{
    QList<TaskListRow> rows;
    for (const TaskGroup &group : groups) {
        rows.append({.docID = group.doc.id, .text = group.doc.title().toUpper()});
        for (const Task &task : group.todos) {
            rows.append({.kind = TaskListRow::Kind::task,
                         .docID = group.doc.id,
                         .blockID = task.block.id,
                         .todoID = task.todo.id,
                         .text = task.todo.text,
                         .done = task.todo.done});
        }
    }
    return rows;
}

int TaskListModel::taskFrom(int row, int step) const
{
    while (row >= 0 && row < rowCount()) {
        if (rows().at(row).kind == TaskListRow::Kind::task)
            return row;
        row += step;
    }
    return -1;
}

QVariant TaskListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const TaskListRow &row = rows().at(index.row());
    switch (role) {
    case RowKindRole:
        return row.kind == TaskListRow::Kind::heading ? u"heading"_s : u"task"_s;
    case DocIDRole:
        return row.docID.toString(QUuid::WithoutBraces);
    case BlockIDRole:
        return row.blockID.toString(QUuid::WithoutBraces);
    case TodoIDRole:
        return row.todoID.toString(QUuid::WithoutBraces);
    case TextRole:
        return row.text;
    case DoneRole:
        return row.done;
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskListModel::roleNames() const
{
    return {{RowKindRole, "rowKind"}, {DocIDRole, "docID"}, {BlockIDRole, "blockID"},
            {TodoIDRole, "todoID"},   {TextRole, "text"},   {DoneRole, "done"}};
}

QList<int> TaskListModel::changedRoles(const TaskListRow &before, const TaskListRow &after) const
{
    QList<int> roles;
    if (before.kind != after.kind)
        roles.append(RowKindRole);
    if (before.docID != after.docID)
        roles.append(DocIDRole);
    if (before.blockID != after.blockID)
        roles.append(BlockIDRole);
    if (before.text != after.text)
        roles.append(TextRole);
    if (before.done != after.done)
        roles.append(DoneRole);
    return roles;
}
