#pragma once

#include "Shell/MenuCommands.h"

#include <QAbstractListModel>
#include <QHash>

#include <functional>

/// What a command runs, whether it is enabled, and whether it is ticked. Without `isEnabled` it is always
/// enabled; without `isTicked` it has no tick.
struct CommandAction {
    std::function<void()> run;
    std::function<bool()> isEnabled = [] { return true; };
    std::function<bool()> isTicked = nullptr;
};

/// The rows of the app menu: the commands, and separators between their groups. A command without an action
/// is disabled; see bind().
class CommandListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        /// "command" or "separator".
        KindRole = Qt::UserRole,
        CommandIDRole,
        TitleRole,
        SymbolRole,
        ShortcutRole,
        /// A second shortcut.
        OtherShortcutRole,
        /// The shortcut as it is labelled on the user's keyboard.
        KeyTextRole,
        /// "about" or "quit" for commands that the system places itself.
        SystemRole,
        /// Whether the command is in the menu; others have only a shortcut.
        IsInMenuRole,
        /// Whether it is one of the editing commands, which share lines of the app menu.
        IsEditingRole,
        IsEnabledRole,
        /// Whether the command can be ticked.
        IsTickableRole,
        IsTickedRole,
    };

    explicit CommandListModel(const QList<MenuCommand> &commands, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    CommandGroup group(int row) const { return m_rows.at(row).command.group; }
    bool isEnabled(const QString &id) const;
    bool isTicked(const QString &id) const;

    void bind(const QString &id, CommandAction action);
    /// Runs the command. Does nothing if it is unknown or disabled.
    void run(const QString &id) const;
    /// Updates whether each command is enabled and ticked.
    void refresh();

private:
    struct Row {
        MenuCommand command = {};
        bool isSeparator = false;
        CommandAction action = {};
        bool isEnabled = false;
        bool isTicked = false;
    };

    const Row *row(const QString &id) const;
    /// Updates the row; returns whether it changed.
    static bool ask(Row &row);

    QList<Row> m_rows;
};
