#pragma once

#include "writer/PageModel.h"

#include <set>

/// The states that a page went through since it was opened, to judge undo and redo by.
class PageHistory
{
public:
    explicit PageHistory(const PlainPage &start) : m_states{{.page = start, .isTyping = false}} {}

    const PlainPage &start() const { return m_states.first().page; }
    const PlainPage &now() const { return m_states.at(*m_now.rbegin()).page; }

    /// The page went on; what was taken back is forgotten.
    void add(const QList<PageModel::Stage> &stages);

    /// Tells whether undo, or redo, may lead from where the page stands to `found`: one step, where keys
    /// that followed each other may count as one. If so, the page stands there now.
    bool travel(const PlainPage &found, bool back);

private:
    std::set<qsizetype> withNeighbours(std::set<qsizetype> states) const;
    /// Whether the page looked the same before the change that led to that state.
    bool isUnseen(qsizetype change) const;

    QList<PageModel::Stage> m_states; // each with the change that led to it
    // A page can look the same at several times: all of them that it may be at.
    std::set<qsizetype> m_now{0};
};
