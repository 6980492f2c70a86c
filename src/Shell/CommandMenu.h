#pragma once

#include "Shell/CommandListModel.h"

#include <QSortFilterProxyModel>

/// One menu of a menu bar: its commands, with separators between the groups and none at the ends. The
/// commands must outlive it.
class CommandMenu : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)

public:
    CommandMenu(CommandListModel &commands, BarMenu menu, QObject *parent = nullptr);

    QString title() const { return menuTitle(m_menu); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    bool belongsHere(int row) const;

    const CommandListModel &m_commands;
    BarMenu m_menu;
};
