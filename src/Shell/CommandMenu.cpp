#include "Shell/CommandMenu.h"

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

CommandMenu::CommandMenu(CommandListModel &commands, BarMenu menu, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_commands(commands)
    , m_menu(menu)
{
    setSourceModel(&commands);
}

bool CommandMenu::filterAcceptsRow(int row, const QModelIndex & /*parent*/) const
{
    const QModelIndex index = sourceModel()->index(row, 0);
    const bool isSeparator = index.data(CommandListModel::KindRole) == u"separator"_s;
    const auto rowsBefore = std::views::iota(0, row);
    return belongsHere(row) && (!isSeparator || std::ranges::any_of(rowsBefore, [this](int before) {
               return belongsHere(before);
           }));
}

bool CommandMenu::belongsHere(int row) const
{
    return barMenu(m_commands.group(row)) == m_menu;
}
