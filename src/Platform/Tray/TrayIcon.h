#pragma once

#include <QImage>

struct TrayIconState;

/// What is beside the icon: a tray that draws labels shows the time as text there, any other leaves it to
/// the icon.
enum class TrayLabels { drawn, ignored };

/// The icon of `size` pixels: the bare flame at rest and beside a label; otherwise a coin on its own dark
/// ground with the minutes that are left, whose rim fills with the time spent.
QImage trayIcon(const TrayIconState &state, int size, TrayLabels labels);
