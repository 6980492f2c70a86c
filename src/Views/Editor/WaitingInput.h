#pragma once

#include <QEvent>

#include <memory>
#include <vector>

class QInputMethodEvent;
class QKeyEvent;

/// A queue of keys and input method events for a text that is not shown completely yet.
class WaitingInput
{
public:
    bool isEmpty() const { return m_events.empty(); }

    /// Returns whether the key is queued. Escape never is. Undo clears the queue, and is not handled if
    /// it is empty.
    bool keepsKey(const QKeyEvent &event);
    /// Returns whether the event is queued. One without text is queued only behind others.
    bool keepsComposition(const QInputMethodEvent &event);
    /// The queue must not be empty.
    std::unique_ptr<QEvent> takeFirst();

private:
    void keep(const QEvent &event) { m_events.emplace_back(event.clone()); }

    std::vector<std::unique_ptr<QEvent>> m_events;
};
