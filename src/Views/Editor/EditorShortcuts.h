#pragma once

#include "Shell/ShortcutLine.h"

#include <QObject>
#include <QtQml/qqml.h>

/// The editor's part of the shortcut sheet: its keys, those of the editing commands, and what can be typed at
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
