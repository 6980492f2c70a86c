#pragma once

#include "CaretMove.h"
#include "PageLayout.h"

/// Finds out where a key takes the caret on a page. Up and down keep to the column they began in.
class CaretTravel
{
public:
    explicit CaretTravel(PageLayout &page) : m_page(page) {}

    /// Nothing where there is no way to go.
    std::optional<PagePosition> destination(const PagePosition &from, const CaretKey &key);

private:
    struct Column {
        PagePosition at;
        qreal x = 0;
    };

    std::optional<PagePosition> step(const Passage &passage, int offset, const CaretKey &key, qreal x);
    /// Across a passage that no caret can stand in.
    std::optional<PagePosition> over(const Passage &passage, int offset, const CaretKey &key, qreal x);
    std::optional<PagePosition> beyond(const Passage &passage, bool forward, const CaretKey &key, qreal x);
    std::optional<PagePosition> pageAway(const PagePosition &from, const QTextDocument &text,
                                         const CaretKey &key, qreal x);
    std::optional<PagePosition> pageEnd(bool forward, bool onlyInText) const;
    /// In the view.
    qreal columnOf(const PagePosition &position);
    /// From the view into the field of that text.
    qreal inField(const TextAddress &address, qreal x);

    PageLayout &m_page;
    std::optional<Column> m_column;
};
