#pragma once

#include <QGuiApplication>
#include <QInputMethodEvent>

/// Sends the events of an input method to the focused field. As with real ones, an event that changes the
/// preedit text contains its caret, even if the preedit text is empty.
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
    /// Replaces `length` characters from `start` on, relative to the caret.
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
