#pragma once

#include <QQuickWindow>
#include <QtQml/qqml.h>

/// A small window without a frame that belongs to what opened it: it comes up beside that, stays inside the
/// screen while it grows and shrinks, and asks to be dismissed once the keyboard has gone elsewhere.
class PanelWindow : public QQuickWindow
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit PanelWindow(QWindow *parent = nullptr);
    ~PanelWindow() override;

    /// `opener` is in the coordinates of the desktop.
    void openAt(const QRect &opener);

Q_SIGNALS:
    void dismissed();

private:
    void place();
    void followActive();

    QRect m_opener;
    bool m_wasActive = false;
};
