#pragma once

#include <QQuickItem>
#include <QtQml/qqml.h>

/// While active, reports key presses and input method events in its window, whichever item handles them.
/// Accepts none of them.
class KeyWatcher : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    QML_ELEMENT

public:
    explicit KeyWatcher(QQuickItem *parent = nullptr) : QQuickItem(parent) {}

    bool isActive() const { return m_isActive; }
    void setActive(bool active);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void activeChanged();
    /// A key or text from an input method is about to reach the focused item. `writes` is whether it would
    /// insert a character.
    void pressed(bool writes);

private:
    bool m_isActive = false;
};
