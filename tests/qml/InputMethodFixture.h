#pragma once

#include <QGuiApplication>
#include <QInputMethodEvent>

/// Sends the focused field what an input method would send it. As with real ones, an event that changes the
/// preedit text carries the place of the caret in it, also when there is no preedit text left.
class InputMethodFixture : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void compose(const QString &preedit) const
    {
        const int end = static_cast<int>(preedit.size());
        QInputMethodEvent event(preedit, {{QInputMethodEvent::Cursor, end, 1, {}}});
        send(event);
    }
    Q_INVOKABLE void commit(const QString &text, const QString &preedit = {}) const
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(text);
        send(event);
    }
    /// Replaces so many characters from `start` on, counted from the caret.
    Q_INVOKABLE void commitReplacing(const QString &text, int start, int length) const
    {
        QInputMethodEvent event;
        event.setCommitString(text, start, length);
        send(event);
    }

private:
    static void send(QInputMethodEvent &event)
    {
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    }
};
