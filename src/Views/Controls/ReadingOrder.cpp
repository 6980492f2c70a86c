#include "ReadingOrder.h"

#include <algorithm>

void ReadingOrder::arrange(const QQuickItem *parent) const
{
    const auto row = [](const QQuickItem *item) { return item->property("index").toInt(); };
    QList<QQuickItem *> items = parent->childItems();
    if (std::ranges::is_sorted(items, {}, row))
        return;
    std::ranges::stable_sort(items, {}, row);
    for (qsizetype item = 1; item < items.size(); ++item)
        items.at(item)->stackAfter(items.at(item - 1));
}
