#pragma once

#include <QQuickItem>
#include <QQuickWindow>

/// Sends keyboard, pointer and input method events to a window. Positions are in the scene.
class UserInput
{
public:
    explicit UserInput(QQuickWindow &window) : m_window(window) {}

    /// Presses a combination such as "Ctrl+Shift+Left".
    void press(const QString &keys);
    /// Presses one key that types these characters.
    void type(const QString &character);
    void click(QPointF place, Qt::KeyboardModifiers modifiers = {});
    void doubleClick(QPointF place);
    /// Presses, moves in a few steps and releases.
    void drag(QPointF from, QPointF to);
    void turnWheel(QPointF place, int angle);
    /// Composes letter by letter like an input method: with a caret in the preedit text, and after the commit
    /// another event with the caret of the empty preedit text.
    void compose(const QString &preedit);
    void commit(const QString &text, bool saysWhereItStands);

private:
    QQuickWindow &m_window;
};
