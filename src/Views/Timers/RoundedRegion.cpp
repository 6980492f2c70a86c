#include "RoundedRegion.h"

#include <cmath>

QRegion roundedRegion(const QSize &size, int radius)
{
    QRegion region(0, radius, size.width(), size.height() - 2 * radius);
    for (int row = 0; row < radius; ++row) {
        const double height = radius - (row + 1); // above the centre of the circle, where the row is widest
        const int inset = int(std::floor(radius - std::sqrt(radius * radius - height * height)));
        const int width = size.width() - 2 * inset;
        region += QRect(inset, row, width, 1);
        region += QRect(inset, size.height() - 1 - row, width, 1);
    }
    return region;
}
