#include "ItemTree.h"

QVariantList ItemTree::all(QQuickItem *item)
{
    QVariantList found{QVariant::fromValue(item)};
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        found.append(all(child));
    return found;
}
