#include "Platform/TerminationSignals.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace
{
constexpr int terminating[] = {SIGTERM, SIGINT, SIGHUP};
volatile std::sig_atomic_t pipeEnd = -1;

/// Async-signal-safe: writes to a pipe that the event loop reads.
void passOn(int)
{
    const int error = errno;
    [[maybe_unused]] const ssize_t count = ::write(pipeEnd, "!", 1);
    errno = error;
}

void handle(int signal, void (*handler)(int))
{
    struct sigaction current = {};
    ::sigaction(signal, nullptr, &current);
    if (current.sa_handler == SIG_IGN)
        return;
    struct sigaction wanted = {};
    wanted.sa_handler = handler;
    wanted.sa_flags = SA_RESTART | SA_RESETHAND;
    ::sigaction(signal, &wanted, nullptr);
}
} // namespace

TerminationSignals::TerminationSignals(std::function<void()> action)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // without the pipe the signals end the process at once
    m_reading = FileDescriptor(ends[0]);
    m_writing = FileDescriptor(ends[1]);
    m_notifier = std::make_unique<QSocketNotifier>(m_reading.number(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this, action = std::move(action)] {
                         char heard = 0;
                         if (::read(m_reading.number(), &heard, 1) == 1)
                             action();
                     });
    pipeEnd = m_writing.number();
    for (const int signal : terminating)
        handle(signal, passOn);
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : terminating)
        handle(signal, SIG_DFL);
    pipeEnd = -1;
}
