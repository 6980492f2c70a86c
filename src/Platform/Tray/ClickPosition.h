#pragma once

#include <QList>
#include <QPoint>
#include <QRect>

/// A screen as Qt knows it: its geometry begins where it does in device pixels, and is measured in
/// device-independent ones.
struct ScaledScreen {
    QRect geometry;
    qreal devicePixelRatio = 1;
};

/// Returns the place of a tray click, which comes in device pixels, in device-independent ones. Outside of
/// all screens it is left as it is.
QPoint clickPosition(QPoint devicePixels, const QList<ScaledScreen> &screens);

/// The screens there are on X11. Empty elsewhere, where a tray does not count device pixels.
QList<ScaledScreen> scaledScreens();
