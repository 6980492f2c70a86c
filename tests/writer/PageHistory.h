#pragma once

#include "writer/PageModel.h"

#include <set>

/// The states of a page since it was opened, to check undo and redo.
class PageHistory
{
public:
    explicit PageHistory(const PlainPage &start) : m_states{{.page = start, .isTyping = false}} {}

    const PlainPage &start() const { return m_states.first().page; }
    const PlainPage &now() const { return m_states.at(*m_now.rbegin()).page; }

    /// Adds the states of a change and drops those that could be redone.
    void add(const QList<PageModel::Stage> &stages);

    /// Returns whether undo, or redo if `back` is false, may lead from the present state to `found`: one
    /// step, or consecutive keys as one. If so, `found` becomes the present state.
    bool travel(const PlainPage &found, bool back);

private:
    std::set<qsizetype> withNeighbours(std::set<qsizetype> states) const;
    /// Returns whether the page looked the same before the change that led to that state.
    bool isUnseen(qsizetype change) const;

    QList<PageModel::Stage> m_states; // each with the change that led to it
    // Equal states cannot be told apart: all that the page may be in.
    std::set<qsizetype> m_now{0};
};
