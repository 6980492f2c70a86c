#pragma once

#include <QEvent>

#include <memory>
#include <vector>

class QInputMethodEvent;
class QKeyEvent;

/// Keys and what input methods compose, kept in their order while the text they are meant for is not shown
/// as a whole.
class WaitingInput
{
public:
    bool isEmpty() const { return m_events.empty(); }

    /// Whether that key is kept. Escape never is. Ctrl+Z takes back the keys that wait, and is not kept where
    /// there are none.
    bool keepsKey(const QKeyEvent &event);
    /// Whether that composition is kept. One without any text is kept only behind others.
    bool keepsComposition(const QInputMethodEvent &event);
    /// There has to be one.
    std::unique_ptr<QEvent> takeFirst();

private:
    void keep(const QEvent &event) { m_events.emplace_back(event.clone()); }

    std::vector<std::unique_ptr<QEvent>> m_events;
};
