#pragma once

#include <QImage>

/// How far a shape spreads when it is softened by `radius`: the picture must leave that much room around it.
constexpr qreal softReach(qreal radius)
{
    return 1.5 * radius;
}

/// The shape, softened and in one colour, for shadows and glows: close to a Gaussian of half the radius.
QImage softened(const QImage &shape, qreal radius, const QColor &color);
