#pragma once

#include <QRegion>

/// Every pixel that a rectangle with round corners touches; it begins at the origin.
QRegion roundedRegion(const QSize &size, int radius);
