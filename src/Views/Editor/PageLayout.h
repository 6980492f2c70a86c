#pragma once

#include "Editor/Passages.h"

#include <QPointF>

class QTextDocument;

/// The texts of a page as they are laid out in the view. Points and distances are in the coordinates of the
/// view, in device-independent pixels.
class PageLayout
{
public:
    virtual ~PageLayout() = default;

    virtual const Passages &passages() const = 0;
    /// The text as it is laid out in its field, which is made if need be; null for a passage without text.
    virtual const QTextDocument *textOf(const TextAddress &address) = 0;
    /// The top left corner of a field that has been made.
    virtual QPointF originOf(const TextAddress &address) = 0;
    /// The place nearest to a point, among the fields and blocks that have been made.
    virtual std::optional<PagePosition> nearest(QPointF point, bool onlyInText) const = 0;
    /// How far Page Up and Page Down go.
    virtual qreal pageStep() const = 0;
    /// Scrolls down, or up when negative, at most to the end of the page. Returns how far.
    virtual qreal scrollBy(qreal distance) = 0;

protected:
    PageLayout() = default;
    Q_DISABLE_COPY_MOVE(PageLayout)
};
