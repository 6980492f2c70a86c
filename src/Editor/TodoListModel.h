#pragma once

#include "Editor/IdListModel.h"
#include "Models/TodoItem.h"

inline QUuid rowKey(const TodoItem &item)
{
    return item.id;
}

/// The entries of one checklist for QML.
class TodoListModel : public IdListModel<TodoItem>
{
    Q_OBJECT

public:
    enum Role { TodoIDRole = Qt::UserRole, TextRole, DoneRole };

    using IdListModel::IdListModel;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QList<int> changedRoles(const TodoItem &before, const TodoItem &after) const override;
};
