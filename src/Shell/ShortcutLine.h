#pragma once

#include "Shell/MenuCommands.h"

#include <QMetaType>
#include <QStringList>

/// One line of the shortcut sheet: a title and the keys of the combination, or a heading, which has no keys.
struct ShortcutLine {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QStringList keys MEMBER keys CONSTANT)

public:
    QString title;
    QStringList keys = {};

    bool operator==(const ShortcutLine &) const = default;
};

/// Returns the shortcuts of the commands.
QList<ShortcutLine> commandKeys(MenuLocation place);

/// Returns the shortcuts of the editing commands, without a heading.
QList<ShortcutLine> editingKeys();

/// Returns what turns an empty line into a block of another kind when it is typed at its start.
QList<ShortcutLine> typingMarkers();
