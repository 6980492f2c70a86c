#include "Platform/DisplayConnectionMonitor.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThread>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
constexpr auto longestWaitForInterface = 5s; // which may be busy while another thread ends the process

std::atomic<const std::function<void()> *> pendingAction = nullptr;
QtMessageHandler previousHandler = nullptr;

void runAction()
{
    if (const auto *once = pendingAction.exchange(nullptr))
        (*once)();
}

/// May be called on a thread of Qt, which can be the first to notice.
void runOnInterfaceThread()
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!pendingAction || !application)
        return;
    if (application->thread() == QThread::currentThread()) {
        runAction();
        return;
    }
    const auto done = std::make_shared<QSemaphore>();
    QMetaObject::invokeMethod(
        application,
        [done] {
            runAction();
            done->release();
        },
        Qt::QueuedConnection);
    (void)done->tryAcquire(1, int(std::chrono::milliseconds(longestWaitForInterface).count()));
}

/// Qt logs a warning before it calls _exit(); there is no other notification.
void hearMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (previousHandler)
        previousHandler(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    if (message.startsWith("The Wayland connection "_L1) || message.startsWith("The X11 connection "_L1))
        runOnInterfaceThread();
}
} // namespace

DisplayConnectionMonitor::DisplayConnectionMonitor(std::function<void()> action) : m_action(std::move(action))
{
    pendingAction = &m_action;
    previousHandler = qInstallMessageHandler(hearMessage);
    // Xlib may also end the process by exit() without a message from Qt.
    static const int isRegistered = std::atexit(runOnInterfaceThread);
    Q_UNUSED(isRegistered)
}

DisplayConnectionMonitor::~DisplayConnectionMonitor()
{
    pendingAction = nullptr;
    qInstallMessageHandler(previousHandler);
}
