#pragma once

#include "Editor/Passages.h"

#include <QPointF>

class QTextDocument;

/// The layout of a page's texts in the view. Points and distances are in the coordinates of the view, in
/// device-independent pixels.
class PageLayout
{
public:
    virtual ~PageLayout() = default;

    virtual const Passages &passages() const = 0;
    /// Returns the laid-out text of a field, creating its row if needed; nullptr for a passage without text.
    virtual const QTextDocument *textOf(const TextAddress &address) = 0;
    /// Returns the top left corner of an existing field.
    virtual QPointF originOf(const TextAddress &address) = 0;
    /// Returns the position nearest to a point, among the existing fields and blocks.
    virtual std::optional<PagePosition> nearest(QPointF point, bool onlyInText) const = 0;
    /// Returns the distance of Page Up and Page Down.
    virtual qreal pageStep() const = 0;
    /// Scrolls down, or up if negative, at most to the end of the page. Returns the scrolled distance.
    virtual qreal scrollBy(qreal distance) = 0;

protected:
    PageLayout() = default;
    Q_DISABLE_COPY_MOVE(PageLayout)
};
