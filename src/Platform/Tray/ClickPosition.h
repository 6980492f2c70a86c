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

/// Converts the position of a tray click from device pixels to device-independent pixels. A position outside
/// of all screens is returned unchanged.
QPoint clickPosition(QPoint devicePixels, const QList<ScaledScreen> &screens);

/// The screens there are on X11. Empty elsewhere, where a tray does not count device pixels.
QList<ScaledScreen> scaledScreens();
