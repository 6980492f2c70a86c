#pragma once

#include "Shell/ShortcutLine.h"

#include <QObject>
#include <QtQml/qqml.h>

/// What the shortcut sheet tells of the editor: its keys, those of the editing commands, and what is typed at
/// the start of a line.
class EditorShortcuts : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<ShortcutLine> lines READ lines CONSTANT)
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    static QList<ShortcutLine> lines();
};
