#include "Timers/SparkListModel.h"

QVariant SparkListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const RecentSpark &card = rows().at(index.row());
    switch (role) {
    case SparkIDRole:
        return card.id.toString(QUuid::WithoutBraces);
    case TextRole:
        return card.text;
    case IsNewRole:
        return card.isNew;
    default:
        return {};
    }
}

QHash<int, QByteArray> SparkListModel::roleNames() const
{
    return {{SparkIDRole, "sparkID"}, {TextRole, "text"}, {IsNewRole, "isNew"}};
}

QList<int> SparkListModel::changedRoles(const RecentSpark &before, const RecentSpark &after) const
{
    QList<int> roles;
    if (before.text != after.text)
        roles.append(TextRole);
    if (before.isNew != after.isNew)
        roles.append(IsNewRole);
    return roles;
}
