#pragma once

#include "Shell/MenuCommands.h"

#include <QMetaType>
#include <QStringList>

/// One line of the sheet of keys: what they do and the keys one after the other, or the heading of the lines
/// below it, which has no keys.
struct ShortcutLine {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QStringList keys MEMBER keys CONSTANT)

public:
    QString title;
    QStringList keys = {};

    bool operator==(const ShortcutLine &) const = default;
};

/// The keys of the commands, from their table.
QList<ShortcutLine> commandKeys(MenuLocation place);

/// The keys of the editing commands, without a heading.
QList<ShortcutLine> editingKeys();

/// What is typed at the start of an empty line to make it a block of another kind.
QList<ShortcutLine> typingMarkers();
