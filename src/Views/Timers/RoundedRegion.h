#pragma once

#include <QRegion>

/// Returns all pixels that a rectangle with rounded corners touches. It begins at the origin.
QRegion roundedRegion(const QSize &size, int radius);
