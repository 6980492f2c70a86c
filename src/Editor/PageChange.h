#pragma once

#include "Editor/TextChange.h"
#include "Models/Block.h"

/// What differs between two versions of a page: the rows that were replaced by others, or only the stretch of
/// text that changed in one of them. It keeps nothing of what did not change, and pictures are shared.
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
    qsizetype rowsBefore() const { return m_text ? 1 : m_before.size(); }
    qsizetype rowsAfter() const { return m_text ? 1 : m_after.size(); }
    Size size() const;

    /// `page` has to be the version before.
    QList<Block> applied(QList<Block> page) const;
    /// `page` has to be the version after.
    QList<Block> reverted(QList<Block> page) const;

private:
    qsizetype m_row = 0;
    QList<Block> m_before;
    QList<Block> m_after;
    std::optional<TextChange> m_text;
};
