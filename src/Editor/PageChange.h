#pragma once

#include "Editor/TextChange.h"
#include "Models/Block.h"

/// The difference between two versions of a page: the changed range of text in the first row that differs,
/// and the replaced rows behind it. Unchanged blocks are not kept, and pictures are shared. Splitting or
/// joining a block thus costs only the text that moved.
class PageChange
{
public:
    /// The memory that a change occupies, in bytes.
    struct Size {
        qsizetype text = 0;
        /// The pictures that only one of the two versions contains.
        qsizetype pictures = 0;
    };

    static PageChange between(const QList<Block> &before, const QList<Block> &after);

    bool isEmpty() const { return !m_text && m_before.isEmpty() && m_after.isEmpty(); }
    /// The first row that differs.
    qsizetype row() const { return m_row; }
    /// The number of rows of the change in the old and in the new version.
    qsizetype rowsBefore() const { return rewrittenRows() + m_before.size(); }
    qsizetype rowsAfter() const { return rewrittenRows() + m_after.size(); }
    Size size() const;

    /// Returns the new version; `page` must be the old one.
    QList<Block> applied(QList<Block> page) const;
    /// Returns the old version; `page` must be the new one.
    QList<Block> reverted(QList<Block> page) const;

private:
    /// The number of rows in which only the text differs: 1 or 0.
    qsizetype rewrittenRows() const { return m_text ? 1 : 0; }

    qsizetype m_row = 0;
    /// The change of the text of the first row, if nothing else of its block differs.
    std::optional<TextChange> m_text;
    /// The replaced rows behind it.
    QList<Block> m_before;
    QList<Block> m_after;
};
