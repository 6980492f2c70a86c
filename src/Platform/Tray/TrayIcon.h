#pragma once

#include <QImage>

struct TrayIconState;

/// Whether the tray draws a text label beside the icon; if not, the icon shows the remaining minutes.
enum class TrayLabels { drawn, ignored };

/// Paints the icon of `size` pixels: the bare flame at rest and beside a label; otherwise a coin on a dark
/// ground with the minutes that are left, whose rim fills with the time spent.
QImage trayIcon(const TrayIconState &state, int size, TrayLabels labels);
