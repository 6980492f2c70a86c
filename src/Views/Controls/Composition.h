#pragma once

#include <QQuickItem>

/// The preedit text of a field: text that an input method composes and that does not belong to the field's
/// text yet.
class Composition : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Inserts the preedit text of the field into its text. Does nothing for items without preedit text and
    /// for null.
    Q_INVOKABLE static void settle(QQuickItem *field);
};
