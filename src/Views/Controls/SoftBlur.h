#pragma once

#include <QImage>

/// Spreads a shape softly over `radius` pixels to every side and colours it, for shadows and glows. The
/// picture must leave that much room around the shape. Close to a Gaussian of half the radius.
QImage softened(const QImage &shape, qreal radius, const QColor &color);
