#pragma once

#include "PictureItem.h"

#include <QtQml/qqml.h>

/// The picture behind the tasks panel: ridges at night above embers, dimmed, in one flat layer. It is aligned
/// to the bottom.
class SidebarBG : public PictureItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    using PictureItem::PictureItem;

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;
};
