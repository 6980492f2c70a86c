#pragma once

#include <QImage>

/// Returns the margin that a picture needs around a shape blurred by `radius`, in the unit of `radius`.
constexpr qreal softReach(qreal radius)
{
    return 1.5 * radius;
}

/// Returns the blurred shape in one colour, for shadows and glows: close to a Gaussian of half the radius,
/// which is in pixels of `shape`.
QImage softened(const QImage &shape, qreal radius, const QColor &color);
