#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// Owns a scheduled call. Destroying or cancelling it cancels the call, so a destroyed owner is never called.
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

/// Delayed calls on the interface thread, and a monotonic clock.
class Scheduler
{
public:
    using Action = std::function<void()>;

    virtual ~Scheduler() = default;

    /// Monotonic time since an arbitrary fixed point.
    virtual std::chrono::milliseconds now() const = 0;

    /// Calls `action` once after `delay`, unless the returned ScheduledCall is destroyed first.
    [[nodiscard]] virtual ScheduledCall after(std::chrono::milliseconds delay, Action action) = 0;

    /// Calls `action` every `interval` until the returned ScheduledCall is destroyed.
    [[nodiscard]] virtual ScheduledCall every(std::chrono::milliseconds interval, Action action) = 0;
};
