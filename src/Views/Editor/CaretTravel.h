#pragma once

#include "CaretMove.h"
#include "PageLayout.h"

/// Computes the destination of the caret on a page. Consecutive vertical moves keep their column.
class CaretTravel
{
public:
    explicit CaretTravel(PageLayout &page) : m_page(page) {}

    /// Returns std::nullopt if the caret cannot move further.
    std::optional<PagePosition> destination(const PagePosition &from, const CaretKey &key);

private:
    struct Column {
        PagePosition at;
        qreal x = 0;
    };

    std::optional<PagePosition> step(const Passage &passage, int offset, const CaretKey &key, qreal x);
    /// Returns the destination behind a passage that cannot contain a caret.
    std::optional<PagePosition> over(const Passage &passage, int offset, const CaretKey &key, qreal x);
    std::optional<PagePosition> beyond(const Passage &passage, bool forward, const CaretKey &key, qreal x);
    std::optional<PagePosition> pageAway(const PagePosition &from, const QTextDocument &text,
                                         const CaretKey &key, qreal x);
    std::optional<PagePosition> pageEnd(bool forward, bool onlyInText) const;
    /// In the coordinates of the view.
    qreal columnOf(const PagePosition &position);
    /// Converts `x` from the view to the field of the text.
    qreal inField(const TextAddress &address, qreal x);

    PageLayout &m_page;
    std::optional<Column> m_column;
};
