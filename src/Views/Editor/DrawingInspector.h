#pragma once

#include <QByteArray>

/// Looks through vector drawings before they are drawn, because drawing one can be made to take forever.
namespace DrawingInspector
{

/// Whether the drawing is complete, refers to nothing outside of itself, and has no more parts than can be
/// drawn in good time, those that are used again counted each time.
bool isHarmless(const QByteArray &bytes);

} // namespace DrawingInspector
