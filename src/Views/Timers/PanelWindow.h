#pragma once

#include <QQuickWindow>
#include <QtQml/qqml.h>

/// A small frameless window that opens beside its opener, stays inside the screen when its height changes,
/// and reports when it loses the focus.
class PanelWindow : public QQuickWindow
{
    Q_OBJECT
    Q_PROPERTY(int cornerRadius MEMBER m_cornerRadius NOTIFY cornerRadiusChanged)
    QML_ELEMENT

public:
    explicit PanelWindow(QWindow *parent = nullptr);
    ~PanelWindow() override;

    /// `opener` is a rectangle on the desktop.
    void openAt(const QRect &opener);

Q_SIGNALS:
    void left();
    void dismissed();
    void cornerRadiusChanged();

private:
    void place();
    void cutCorners();
    void followActive();

    QRect m_opener;
    int m_cornerRadius = 0;
    bool m_wasActive = false;
};
