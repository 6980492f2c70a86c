#pragma once

#include <QQuickItem>

/// The text that an input method is composing in a field: shown there as preedit text, but not part of the
/// field's text yet.
class Composition : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Makes the preedit text of that field part of its text, in its place, so that it cannot be lost. Fields
    /// and other items without preedit text stay as they are; so does null.
    Q_INVOKABLE static void settle(QQuickItem *field);
};
