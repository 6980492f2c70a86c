#pragma once

#include "ListModels/IdListModel.h"
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

    /// Publishes the rows at that time, from which on the ages of the pages are told. Rows that stay keep
    /// their delegates: to make them anew would take longer than all else.
    void begin(QList<PageRow> rows, Timestamp now, const QTimeZone &zone);

    /// For rows that have hardly any in common with those before: ten thousand are not put in one by one.
    void replace(QList<PageRow> rows) { replaceAll(std::move(rows)); }

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QList<int> changedRoles(const PageRow &before, const PageRow &after) const override;

private:
    QString ageAndLength(const PelkoDocument &page) const;
    HighlightedLine name(const PageRow &row) const;
    HighlightedLine detail(const PageRow &row) const;
    QString description(const PageRow &row) const;

    Timestamp m_now = 0;
    QTimeZone m_zone;
};
