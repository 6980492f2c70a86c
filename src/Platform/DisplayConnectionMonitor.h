#pragma once

#include <QtGlobal>

#include <functional>

/// Calls `action` on the interface thread when the connection to the display breaks, before Qt ends the
/// process: it calls exit() when the X server has gone and _exit() when the Wayland compositor has, so that
/// main() is never returned to. Event loop, windows and timers must not be used in `action`. One object a
/// process.
class DisplayConnectionMonitor
{
public:
    explicit DisplayConnectionMonitor(std::function<void()> action);
    ~DisplayConnectionMonitor();
    Q_DISABLE_COPY_MOVE(DisplayConnectionMonitor)

private:
    std::function<void()> m_action;
};
