#pragma once

#include "Shell/CommandListModel.h"

#include <QSortFilterProxyModel>

/// One menu of a menu bar: the rows of the commands that belong to it, with the hairlines between its groups
/// and none at its ends. The commands outlive it.
class CommandMenu : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)

public:
    CommandMenu(CommandListModel &commands, QString title, QObject *parent = nullptr);

    QString title() const { return m_title; }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    bool belongsHere(int row) const;

    QString m_title;
};
