#pragma once

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>

/// One command of the application: a row of the app menu and, when it has one, a key.
struct MenuCommand {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString shortcut MEMBER shortcut CONSTANT)

public:
    QString id;
    QString title;
    QString symbol;
    /// In portable words, where "Ctrl" is Command on a Mac; empty for none.
    QString shortcut;

    bool operator==(const MenuCommand &) const = default;
};

/// Every command, in the order of the menu. The shortcuts and the app menu are both made from it.
const QList<MenuCommand> &menuCommands();
