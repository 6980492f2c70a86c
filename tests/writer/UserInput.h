#pragma once

#include <QQuickItem>
#include <QQuickWindow>

/// Keyboard, pointer and input method of a window in a test. Places are told in the scene.
class UserInput
{
public:
    explicit UserInput(QQuickWindow &window) : m_window(window) {}

    /// Such as "Ctrl+Shift+Left".
    void press(const QString &keys);
    /// One key that types these characters, however many units they are.
    void type(const QString &character);
    void click(QPointF place, Qt::KeyboardModifiers modifiers = {});
    void doubleClick(QPointF place);
    /// Presses, moves in a few steps and lets go.
    void drag(QPointF from, QPointF to);
    void turnWheel(QPointF place, int angle);
    /// Composes letter by letter as input methods do: with a caret in what is composed, and after the commit
    /// another event that says where the caret of the empty composition stands.
    void compose(const QString &preedit);
    void commit(const QString &text, bool saysWhereItStands);

private:
    QQuickWindow &m_window;
};
