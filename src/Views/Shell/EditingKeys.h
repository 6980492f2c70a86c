#pragma once

#include <QObject>
#include <QQuickWindow>
#include <QtQml/qqml.h>

/// Sends the key of an editing command to the focused item, so that the command does the same as its key.
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
