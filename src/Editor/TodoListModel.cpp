#include "Editor/TodoListModel.h"

QVariant TodoListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const TodoItem &item = rows().at(index.row());
    switch (role) {
    case TodoIDRole:
        return item.id.toString(QUuid::WithoutBraces);
    case TextRole:
        return item.text;
    case DoneRole:
        return item.done;
    default:
        return {};
    }
}

QHash<int, QByteArray> TodoListModel::roleNames() const
{
    return {{TodoIDRole, "todoID"}, {TextRole, "text"}, {DoneRole, "done"}};
}

QList<int> TodoListModel::changedRoles(const TodoItem &before, const TodoItem &after) const
{
    QList<int> roles;
    if (before.text != after.text)
        roles.append(TextRole);
    if (before.done != after.done)
        roles.append(DoneRole);
    return roles;
}
