#pragma once

#include "Editor/TextChange.h"
#include "Models/Block.h"

/// What differs between two versions of a page: the stretch of text that changed in the first row that
/// differs, and the rows behind it that were replaced by others. It keeps nothing of what did not change, and
/// pictures are shared. A block that is split or joined thus costs only the text that moved.
class PageChange
{
public:
    /// What it takes to keep a change, in bytes.
    struct Size {
        qsizetype text = 0;
        /// Of the pictures that only one of the two versions has.
        qsizetype pictures = 0;
    };

    static PageChange between(const QList<Block> &before, const QList<Block> &after);

    bool isEmpty() const { return !m_text && m_before.isEmpty() && m_after.isEmpty(); }
    /// The first row that differs.
    qsizetype row() const { return m_row; }
    /// How many rows stood there before, and stand there now.
    qsizetype rowsBefore() const { return rewrittenRows() + m_before.size(); }
    qsizetype rowsAfter() const { return rewrittenRows() + m_after.size(); }
    Size size() const;

    /// `page` has to be the version before.
    QList<Block> applied(QList<Block> page) const;
    /// `page` has to be the version after.
    QList<Block> reverted(QList<Block> page) const;

private:
    /// How many rows of the change keep their block and have another text: 1 or 0.
    qsizetype rewrittenRows() const { return m_text ? 1 : 0; }

    qsizetype m_row = 0;
    /// The change of text of the block in the first row, where it is only that.
    std::optional<TextChange> m_text;
    /// The rows behind it.
    QList<Block> m_before;
    QList<Block> m_after;
};
