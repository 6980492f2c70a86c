#pragma once

#include "Platform/DisplayConnectionMonitor.h"
#include "Platform/TerminationSignals.h"

#include <QPointer>
#include <QWindow>

class QSessionManager;

/// Has the documents saved before the program ends, in whatever orderly way it ends: the writer quits it or
/// closes its window, the session ends, a signal asks for it, or the display goes away.
class OrderlyShutdown : public QObject
{
    Q_OBJECT

public:
    struct Callbacks {
        /// Saves. Returns whether the program may end; if not, the writer is being asked.
        std::function<bool()> mayEnd;
        /// Saves when there is nobody to ask. Returns what failed, in words for the user, or an empty text.
        std::function<QString()> save;
        /// The same when windows, timers and event loop must not be used any more.
        std::function<void()> saveWithoutDisplay;
        /// Whether the program ends when its window is closed.
        std::function<bool()> endsWithWindow;
    };

    explicit OrderlyShutdown(Callbacks callbacks, QObject *parent = nullptr);

    /// Has the documents saved before that window closes, and keeps it open while the writer is asked.
    void guard(QWindow &window);

Q_SIGNALS:
    /// The program was not allowed to end: the window that asks has to be seen.
    void refused();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void endBySignal();
    void endSession(QSessionManager &session);
    bool mayClose();
    bool mayEnd();

    Callbacks m_callbacks;
    QPointer<QWindow> m_window;
    TerminationSignals m_signals{[this] { endBySignal(); }};
    DisplayConnectionMonitor m_displayMonitor{[this] { m_callbacks.saveWithoutDisplay(); }};
};
