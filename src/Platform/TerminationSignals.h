#pragma once

#include "Platform/FileDescriptor.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

/// Calls `action` in the event loop when the system asks the process to end, by SIGTERM, SIGINT or SIGHUP. A
/// signal that was ignored at the start, as `nohup` does, stays ignored. A second signal of
/// the same kind ends the process at once, in case it hangs. One object a process; interface thread only.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> action);
    /// The signals end the process at once again.
    ~TerminationSignals();
    Q_DISABLE_COPY_MOVE(TerminationSignals)

private:
    FileDescriptor m_reading;
    FileDescriptor m_writing;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
