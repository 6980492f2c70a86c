#pragma once

#include <QQuickWindow>
#include <QtQml/qqml.h>

/// A small window without a frame that belongs to what opened it: it comes up beside that, stays inside the
/// screen while it grows and shrinks, and tells when the keyboard has gone elsewhere.
class PanelWindow : public QQuickWindow
{
    Q_OBJECT
    Q_PROPERTY(int cornerRadius MEMBER m_cornerRadius NOTIFY cornerRadiusChanged)
    QML_ELEMENT

public:
    explicit PanelWindow(QWindow *parent = nullptr);
    ~PanelWindow() override;

    /// `opener` is in the coordinates of the desktop.
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
