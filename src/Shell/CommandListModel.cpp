#include "Shell/CommandListModel.h"

#include "Shell/KeyNames.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
QString systemRole(CommandRole role)
{
    switch (role) {
    case CommandRole::about:
        return u"about"_s;
    case CommandRole::quit:
        return u"quit"_s;
    case CommandRole::ordinary:
    case CommandRole::windowMenu:
        break;
    }
    return {};
}
} // namespace

CommandListModel::CommandListModel(const QList<MenuCommand> &commands, QObject *parent)
    : QAbstractListModel(parent)
{
    for (const MenuCommand &command : commands) {
        const bool beginsGroup = !m_rows.isEmpty() && command.group != m_rows.last().command.group;
        if (beginsGroup && command.group != CommandGroup::none)
            m_rows.append(Row{.command = {.group = command.group}, .isSeparator = true});
        m_rows.append(Row{.command = command});
    }
}

int CommandListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CommandListModel::data(const QModelIndex &index, int role) const
{
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case KindRole:
        return row.isSeparator ? u"separator"_s : u"command"_s;
    case CommandIDRole:
        return row.command.id;
    case TitleRole:
        return row.command.title();
    case SymbolRole:
        return row.command.symbol;
    case ShortcutRole:
        return row.command.shortcut;
    case OtherShortcutRole:
        return row.command.otherShortcut;
    case KeyTextRole:
        return keyNames(row.command.shortcut).join(u'+');
    case SystemRole:
        return systemRole(row.command.role);
    case IsInMenuRole:
        return row.command.group != CommandGroup::none;
    case IsEditingRole:
        return row.command.group == CommandGroup::editing;
    case IsEnabledRole:
        return row.isEnabled;
    case IsTickableRole:
        return bool(row.action.isTicked);
    case IsTickedRole:
        return row.isTicked;
    default:
        return {};
    }
}

QHash<int, QByteArray> CommandListModel::roleNames() const
{
    return {{KindRole, "kind"},           {CommandIDRole, "commandID"}, {TitleRole, "title"},
            {SymbolRole, "symbol"},       {ShortcutRole, "shortcut"},   {OtherShortcutRole, "otherShortcut"},
            {KeyTextRole, "keyText"},     {SystemRole, "systemRole"},   {IsInMenuRole, "isInMenu"},
            {IsEditingRole, "isEditing"}, {IsEnabledRole, "isEnabled"}, {IsTickableRole, "isTickable"},
            {IsTickedRole, "isTicked"}};
}

bool CommandListModel::isEnabled(const QString &id) const
{
    const Row *found = row(id);
    return found && found->isEnabled;
}

bool CommandListModel::isTicked(const QString &id) const
{
    const Row *found = row(id);
    return found && found->isTicked;
}

void CommandListModel::bind(const QString &id, CommandAction action)
{
    const Row *found = row(id);
    Q_ASSERT(found && action.run);
    const qsizetype place = found - m_rows.constData();
    m_rows[place].action = std::move(action);
    ask(m_rows[place]);
    const QModelIndex bound = index(static_cast<int>(place));
    Q_EMIT dataChanged(bound, bound, {IsEnabledRole, IsTickableRole, IsTickedRole});
}

void CommandListModel::run(const QString &id) const
{
    if (!isEnabled(id))
        return;
    // The action may call bind() and refresh(), so run a copy.
    const std::function<void()> action = row(id)->action.run;
    action();
}

void CommandListModel::refresh()
{
    for (int place = 0; place < rowCount(); ++place) {
        if (ask(m_rows[place]))
            Q_EMIT dataChanged(index(place), index(place), {IsEnabledRole, IsTickedRole});
    }
}

bool CommandListModel::ask(Row &row)
{
    const bool isEnabled = row.action.run && row.action.isEnabled();
    const bool isTicked = row.action.isTicked && row.action.isTicked();
    const bool differs = row.isEnabled != isEnabled || row.isTicked != isTicked;
    row.isEnabled = isEnabled;
    row.isTicked = isTicked;
    return differs;
}

const CommandListModel::Row *CommandListModel::row(const QString &id) const
{
    const auto found = std::ranges::find_if(
        m_rows, [&id](const Row &row) { return !row.isSeparator && row.command.id == id; });
    return found == m_rows.end() ? nullptr : &*found;
}
