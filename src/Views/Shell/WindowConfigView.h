#pragma once

#include <QColor>
#include <QQuickItem>
#include <QtQml/qqml.h>

/// Configures each window that it is added to: frameless (except on macOS), opaque, with the colour
/// `background`. Changes no other properties of the window, and none when it is removed.
class WindowConfigView : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QColor background MEMBER m_background REQUIRED)
    QML_ELEMENT

public:
    explicit WindowConfigView(QQuickItem *parent = nullptr);

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void componentComplete() override;

private:
    void configureWindow();

    QColor m_background;
};
