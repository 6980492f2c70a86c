#pragma once

#include "ListModels/IdListModel.h"
#include "Models/Space.h"

/// A space in the navigation.
struct SpaceTab {
    Space space = Space::ideas;
    /// The number of pages, which may exceed the limit.
    qsizetype pages = 0;
    bool isCurrent = false;

    bool operator==(const SpaceTab &) const = default;
};

inline Space rowKey(const SpaceTab &tab)
{
    return tab.space;
}

/// The spaces of the navigation for QML.
class SpaceListModel : public IdListModel<SpaceTab>
{
    Q_OBJECT

public:
    enum Role { SpaceRole = Qt::UserRole, TitleRole, SymbolRole, PagesRole, IsCurrentRole };

    using IdListModel::IdListModel;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QList<int> changedRoles(const SpaceTab &before, const SpaceTab &after) const override;
};
