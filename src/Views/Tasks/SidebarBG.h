#pragma once

#include "PictureItem.h"

#include <QtQml/qqml.h>

/// The background of the tasks panel: dark mountain ridges above embers, painted as one picture. It is
/// aligned to the bottom.
class SidebarBG : public PictureItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    using PictureItem::PictureItem;

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;
};
