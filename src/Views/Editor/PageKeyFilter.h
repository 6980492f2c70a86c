#pragma once

#include <QPointer>
#include <QQuickItem>

class PageFields;
class PageKeys;
class QQuickWindow;

/// Sends keys that are pressed outside of the page's fields to the page: those on a block or control before
/// the item receives them, and typed text that no item has accepted.
class PageKeyFilter : public QObject
{
public:
    PageKeyFilter(const PageFields &page, PageKeys &keys) : m_page(page), m_keys(keys) {}

    void watch(QQuickItem &view);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followWindow(QQuickWindow *window);
    void followFocus();
    bool pressedOnFocused(const QKeyEvent &event);

    const PageFields &m_page;
    PageKeys &m_keys;
    QPointer<QQuickItem> m_view;
    QPointer<QQuickWindow> m_window;
    /// The item in the view that has the focus.
    QPointer<QQuickItem> m_focused;
};
