#pragma once

#include <QQuickItem>

/// Sorts the delegates of a list by row. Views keep delegates in the order of creation, and assistive
/// technology would read them in that order.
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
