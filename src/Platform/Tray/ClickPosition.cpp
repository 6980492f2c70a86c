#include "Platform/Tray/ClickPosition.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;

QPoint clickPosition(QPoint devicePixels, const QList<ScaledScreen> &screens)
{
    for (const ScaledScreen &screen : screens) {
        const QPoint origin = screen.geometry.topLeft();
        const QRect native(origin, screen.geometry.size() * screen.devicePixelRatio);
        if (native.contains(devicePixels))
            return origin + (devicePixels - origin) / screen.devicePixelRatio;
    }
    return devicePixels;
}

QList<ScaledScreen> scaledScreens()
{
    QList<ScaledScreen> screens;
    if (QGuiApplication::platformName() != u"xcb"_s)
        return screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append({.geometry = screen->geometry(), .devicePixelRatio = screen->devicePixelRatio()});
    return screens;
}
