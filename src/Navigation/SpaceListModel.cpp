#include "Navigation/SpaceListModel.h"

using namespace Qt::StringLiterals;

namespace
{
QString symbol(Space space)
{
    switch (space) {
    case Space::ideas:
        return u"lightbulb"_s;
    case Space::work:
        return u"briefcase"_s;
    case Space::journal:
        return u"book.closed"_s;
    }
    Q_UNREACHABLE();
}
} // namespace

QVariant SpaceListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SpaceTab &tab = rows().at(index.row());
    switch (role) {
    case SpaceRole:
        return rawValue(tab.space);
    case TitleRole:
        return displayName(tab.space);
    case SymbolRole:
        return symbol(tab.space);
    case PagesRole:
        return int(tab.pages);
    case IsCurrentRole:
        return tab.isCurrent;
    default:
        return {};
    }
}

QHash<int, QByteArray> SpaceListModel::roleNames() const
{
    return {{SpaceRole, "space"},
            {TitleRole, "title"},
            {SymbolRole, "symbol"},
            {PagesRole, "pages"},
            {IsCurrentRole, "isCurrent"}};
}

QList<int> SpaceListModel::changedRoles(const SpaceTab &before, const SpaceTab &after) const
{
    QList<int> roles;
    if (before.pages != after.pages)
        roles.append(PagesRole);
    if (before.isCurrent != after.isCurrent)
        roles.append(IsCurrentRole);
    return roles;
}
