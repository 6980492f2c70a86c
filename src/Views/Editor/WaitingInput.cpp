#include "WaitingInput.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include <utility>

bool WaitingInput::keepsKey(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Escape)
        return false;
    if (event.matches(QKeySequence::Undo))
        return !std::exchange(m_events, {}).empty();
    keep(event);
    return true;
}

bool WaitingInput::keepsComposition(const QInputMethodEvent &event)
{
    if (isEmpty() && event.preeditString().isEmpty() && event.commitString().isEmpty())
        return false;
    keep(event);
    return true;
}

std::unique_ptr<QEvent> WaitingInput::takeFirst()
{
    std::unique_ptr<QEvent> first = std::move(m_events.front());
    m_events.erase(m_events.begin());
    return first;
}
