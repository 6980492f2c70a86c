#pragma once

#include <QQuickItem>

/// Puts the delegates of a list into the order of their rows. The list leaves them in the order in which they
/// were made, and that is how assistive technology would read them.
class ReadingOrder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Arranges the children of `parent` by their `index`, as far as they are not in that order yet.
    Q_INVOKABLE void arrange(const QQuickItem *parent) const;
};
