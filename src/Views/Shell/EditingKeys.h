#pragma once

#include <QObject>
#include <QQuickWindow>
#include <QtQml/qqml.h>

/// Presses the key of an editing command, so that the command does what its key does in whatever has the
/// keyboard.
class EditingKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// `command` is the id of a command of the group `editing`. Returns whether an item accepted the key.
    Q_INVOKABLE static bool press(QQuickWindow *window, const QString &command);
};
