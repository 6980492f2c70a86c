#pragma once

#include "ListModels/IdListModel.h"
#include "Timers/RecentSparks.h"

inline QUuid rowKey(const RecentSpark &card)
{
    return card.id;
}

/// The cards of the recent sparks for QML.
class SparkListModel : public IdListModel<RecentSpark>
{
    Q_OBJECT

public:
    enum Role { SparkIDRole = Qt::UserRole, TextRole, IsNewRole };

    using IdListModel::IdListModel;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QList<int> changedRoles(const RecentSpark &before, const RecentSpark &after) const override;
};
