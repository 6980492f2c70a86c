#pragma once

#include "Editor/IdListModel.h"
#include "Navigation/PageRow.h"

/// The pages of the navigation for QML: those of a space, or those that a search has found.
class PageListModel : public IdListModel<PageRow>
{
    Q_OBJECT

public:
    enum Role {
        PageIDRole = Qt::UserRole,
        NameRole,
        DetailRole,
        IsOpenRole,
        IsSparkRole,
        IsPinnedRole,
        IsArchivedRole,
        SpaceRole,
        DescriptionRole
    };

    using IdListModel::IdListModel;

    /// Begins anew at that time, from which on the ages of the pages are told.
    void begin(QList<PageRow> rows, Timestamp now, const QTimeZone &zone);

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QList<int> changedRoles(const PageRow &before, const PageRow &after) const override;

private:
    QString ageAndLength(const PelkoDocument &page) const;
    MarkedLine name(const PageRow &row) const;
    MarkedLine detail(const PageRow &row) const;
    QString description(const PageRow &row) const;

    Timestamp m_now = 0;
    QTimeZone m_zone;
};
