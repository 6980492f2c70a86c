#pragma once

#include <QByteArray>

/// Inspects SVG drawings before they are drawn, because a crafted drawing can take unlimited time.
namespace DrawingInspector
{

/// Returns whether the drawing is complete, has no references to other files, and has no more elements than
/// can be drawn quickly, with repeated use counted.
bool isHarmless(const QByteArray &bytes);

} // namespace DrawingInspector
