#include "writer/PageHistory.h"

void PageHistory::add(const QList<PageModel::Stage> &stages)
{
    for (const PageModel::Stage &stage : stages) {
        if (stage.page == now())
            continue;
        const qsizetype last = *m_now.rbegin();
        m_states.resize(last + 1, m_states.first());
        m_states.append(stage);
        m_now = {last + 1};
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
            isTyping = m_states.at(back ? at : at + 1).isTyping;
            if (!isTyping && at != from)
                break;
            at += back ? -1 : 1;
            if (m_states.at(at).page == found)
                reached.insert(at);
        }
    }
    if (!reached.empty())
        m_now = reached;
    return !reached.empty();
}
