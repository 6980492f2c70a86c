#pragma once

#include "ListModels/IdListModel.h"
#include "Navigation/PageRow.h"

/// The rows of the navigation for QML: the pages of a space, or search results.
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

    /// Replaces the rows. The ages of the pages are relative to `now`. Rows that stay keep their delegates,
    /// because creating delegates takes most of the time.
    void begin(QList<PageRow> rows, Timestamp now, const QTimeZone &zone);

    /// Replaces the rows by others that share hardly any with them, because ten thousand single insertions
    /// are slow.
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
