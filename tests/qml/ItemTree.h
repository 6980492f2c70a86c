#pragma once

#include <QObject>
#include <QQuickItem>
#include <QVariantList>

/// Finds items in a view, for tests.
class ItemTree : public QObject
{
    Q_OBJECT

public:
    /// Returns the item and all items below it, parents before their children.
    Q_INVOKABLE static QVariantList all(QQuickItem *item);
};
