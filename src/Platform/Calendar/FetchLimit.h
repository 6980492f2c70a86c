#pragma once

#include <QDeadlineTimer>

#include <memory>

/// How long there is any use in looking for events: until the time is up, or nobody waits for them any more.
class FetchLimit
{
public:
    FetchLimit(std::chrono::milliseconds time, std::weak_ptr<void> asker, std::weak_ptr<void> store)
        : m_deadline(time)
        , m_asker(std::move(asker))
        , m_store(std::move(store))
    {
    }

    bool isWanted() const { return !m_asker.expired() && !m_store.expired(); }
    bool isOver() const { return m_deadline.hasExpired() || !isWanted(); }
    std::chrono::milliseconds left() const
    {
        return std::chrono::ceil<std::chrono::milliseconds>(m_deadline.remainingTimeAsDuration());
    }

    /// One that is over sooner, so that there is time left for what comes after it.
    FetchLimit sooner() const { return {left() * 4 / 5, m_asker, m_store}; }

private:
    QDeadlineTimer m_deadline;
    std::weak_ptr<void> m_asker;
    std::weak_ptr<void> m_store;
};
