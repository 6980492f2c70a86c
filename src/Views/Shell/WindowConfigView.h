#pragma once

#include <QColor>
#include <QQuickItem>
#include <QtQml/qqml.h>

/// Dresses the window it is put into, each time it is put into one: no title bar but the one the app draws
/// (a Mac keeps its own), opaque, in the colour `background`. All other traits of the window stay as they
/// were. Leaving a window changes nothing.
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
