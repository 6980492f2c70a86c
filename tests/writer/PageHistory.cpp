#include "writer/PageHistory.h"

void PageHistory::add(const QList<PageModel::Stage> &stages)
{
    for (const PageModel::Stage &stage : stages) {
        const bool looksTheSame = stage.page == now();
        const qsizetype last = *m_now.rbegin();
        const bool canRedo = last + 1 < m_states.size();
        if (looksTheSame && (stage.isTyping || canRedo))
            continue;
        m_states.resize(last + 1, m_states.first());
        m_states.append(stage);
        if (!looksTheSame)
            m_now.clear();
        m_now.insert(last + 1);
    }
}

bool PageHistory::travel(const PlainPage &found, bool back)
{
    std::set<qsizetype> reached;
    for (const qsizetype from : m_now) {
        const qsizetype end = back ? 0 : m_states.size() - 1;
        if (from == end && found == now())
            reached.insert(from);
        bool isTyping = true;
        for (qsizetype at = from; at != end && isTyping;) {
            isTyping = m_states.at(back ? at : at + 1).isTyping || isUnseen(back ? at : at + 1);
            if (!isTyping && at != from)
                break;
            at += back ? -1 : 1;
            if (m_states.at(at).page == found)
                reached.insert(at);
        }
    }
    if (!reached.empty())
        m_now = withNeighbours(reached);
    return !reached.empty();
}

/// Adds neighbouring states that look the same: an invisible change may have been a step of its own or not.
std::set<qsizetype> PageHistory::withNeighbours(std::set<qsizetype> states) const
{
    for (qsizetype at = 1; at < m_states.size(); ++at) {
        if (states.contains(at - 1) && isUnseen(at))
            states.insert(at);
    }
    for (qsizetype at = m_states.size() - 1; at > 0; --at) {
        if (states.contains(at) && isUnseen(at))
            states.insert(at - 1);
    }
    return states;
}

bool PageHistory::isUnseen(qsizetype change) const
{
    return m_states.at(change).page == m_states.at(change - 1).page;
}
