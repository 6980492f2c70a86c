#pragma once

#include "Platform/DisplayConnectionMonitor.h"
#include "Platform/TerminationSignals.h"

#include <QPointer>
#include <QWindow>

class QSessionManager;

/// Saves the documents before the program ends: by quit, closed window, end of the session, termination
/// signal or loss of the display.
class OrderlyShutdown : public QObject
{
    Q_OBJECT

public:
    struct Callbacks {
        /// Saves. Returns whether the program may end; if not, a question is shown.
        std::function<bool()> mayEnd;
        /// Saves without interaction. Returns the error for the user, or an empty text.
        std::function<QString()> save;
        /// Saves without using windows, timers or the event loop.
        std::function<void()> saveWithoutDisplay;
        /// Whether the program ends when its window is closed.
        std::function<bool()> endsWithWindow;
    };

    explicit OrderlyShutdown(Callbacks callbacks, QObject *parent = nullptr);

    /// Saves before `window` closes, and keeps it open while the question is shown.
    void guard(QWindow &window);

Q_SIGNALS:
    /// The end of the program was refused; the window with the question must become visible.
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
