#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// A call that a Scheduler has been asked to make. Dropping or resetting it takes the request back, so an
/// owner that dies is never called.
class ScheduledCall
{
public:
    ScheduledCall() = default;
    explicit ScheduledCall(std::shared_ptr<void> token) : m_token(std::move(token)) {}
    ScheduledCall(ScheduledCall &&) = default;
    ScheduledCall &operator=(ScheduledCall &&) = default;

    void cancel() { m_token.reset(); }

private:
    std::shared_ptr<void> m_token;
};

/// Makes calls later, on the interface thread, and measures how long something took.
class Scheduler
{
public:
    using Action = std::function<void()>;

    virtual ~Scheduler() = default;

    /// Time that has passed since some fixed moment. It never goes back, whatever the wall clock does.
    virtual std::chrono::milliseconds now() const = 0;

    /// Calls `action` once when `delay` has passed. The request lives as long as what is returned.
    [[nodiscard]] virtual ScheduledCall after(std::chrono::milliseconds delay, Action action) = 0;

    /// Calls `action` each time another `interval` has passed, until what is returned is dropped.
    [[nodiscard]] virtual ScheduledCall every(std::chrono::milliseconds interval, Action action) = 0;
};
