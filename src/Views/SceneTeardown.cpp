#include "SceneTeardown.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace
{
// The layers of a window are in its content item.
constexpr int layerDepth = 2;

/// Topmost first, because glass items use the items below them.
void takeDownItem(QQuickItem &item, int depth)
{
    QList<QQuickItem *> children = item.childItems();
    while (!children.isEmpty()) {
        QQuickItem *child = children.takeLast();
        if (depth > 1)
            takeDownItem(*child, depth - 1);
        delete child;
    }
}
} // namespace

void tearDownScene(QQuickWindow &window)
{
    takeDownItem(*window.contentItem(), layerDepth);
}
