#include "Navigation/PageListModel.h"

#include "Navigation/PageTexts.h"

using namespace Qt::StringLiterals;

void PageListModel::begin(QList<PageRow> rows, Timestamp now, const QTimeZone &zone)
{
    m_now = now;
    m_zone = zone;
    publish(std::move(rows));
    if (!this->rows().isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {DetailRole, DescriptionRole});
}

QString PageListModel::ageAndLength(const PelkoDocument &page) const
{
    const qint64 words = page.wordCount();
    return u"%1 · %2"_s.arg(page.relativeDate(m_now, m_zone, QLocale()),
                            tr("%n word(s)", nullptr, static_cast<int>(words)));
}

HighlightedLine PageListModel::name(const PageRow &row) const
{
    return row.name.value_or(HighlightedLine{pageName(row.page), {}});
}

HighlightedLine PageListModel::detail(const PageRow &row) const
{
    return row.context ? *row.context : HighlightedLine{ageAndLength(row.page), {}};
}

QString PageListModel::description(const PageRow &row) const
{
    QStringList parts{name(row).text, detail(row).text};
    if (row.name)
        parts.append(displayName(row.page.space));
    if (row.isOpen)
        parts.append(tr("open", "the page, after its name"));
    if (isSpark(row.page))
        parts.append(tr("spark", "the page, after its name"));
    if (row.page.isPinned.value_or(false))
        parts.append(tr("pinned", "the page, after its name"));
    if (row.page.isArchived.value_or(false))
        parts.append(tr("archived", "the page, after its name"));
    return parts.join(u", "_s);
}

QVariant PageListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PageRow &row = rows().at(index.row());
    switch (role) {
    case PageIDRole:
        return row.page.id.toString(QUuid::WithoutBraces);
    case NameRole:
        return QVariant::fromValue(name(row));
    case DetailRole:
        return QVariant::fromValue(detail(row));
    case IsOpenRole:
        return row.isOpen;
    case IsSparkRole:
        return isSpark(row.page);
    case IsPinnedRole:
        return row.page.isPinned.value_or(false);
    case IsArchivedRole:
        return row.page.isArchived.value_or(false);
    case SpaceRole:
        return row.name ? displayName(row.page.space) : QString();
    case DescriptionRole:
        return description(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> PageListModel::roleNames() const
{
    // Assistive technology reads the accessible name instead.
    return {{PageIDRole, "pageID"}, {NameRole, "titleLine"},   {DetailRole, "detailLine"},
            {IsOpenRole, "isOpen"}, {IsSparkRole, "isSpark"},  {IsPinnedRole, "isPinned"},
            {SpaceRole, "space"},   {DescriptionRole, "name"}, {IsArchivedRole, "isArchived"}};
}

QList<int> PageListModel::changedRoles(const PageRow &before, const PageRow &after) const
{
    if (before == after)
        return {};
    QList<int> roles = roleNames().keys();
    roles.removeOne(PageIDRole);
    return roles;
}
