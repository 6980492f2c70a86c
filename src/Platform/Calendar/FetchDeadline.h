#pragma once

#include <QDeadlineTimer>

#include <memory>

/// When a fetch of events has to stop: after a time, or when its receiver or its store is gone.
class FetchDeadline
{
public:
    FetchDeadline(std::chrono::milliseconds time, std::weak_ptr<void> receiver, std::weak_ptr<void> store)
        : m_deadline(time)
        , m_receiver(std::move(receiver))
        , m_store(std::move(store))
    {
    }

    bool isWanted() const { return !m_receiver.expired() && !m_store.expired(); }
    bool isOver() const { return m_deadline.hasExpired() || !isWanted(); }
    std::chrono::milliseconds left() const
    {
        return std::chrono::ceil<std::chrono::milliseconds>(m_deadline.remainingTimeAsDuration());
    }

    /// A deadline at four fifths of the time left, for a step that others follow.
    FetchDeadline sooner() const { return {left() * 4 / 5, m_receiver, m_store}; }

private:
    QDeadlineTimer m_deadline;
    std::weak_ptr<void> m_receiver;
    std::weak_ptr<void> m_store;
};
