#pragma once

#include <QDir>
#include <QProcessEnvironment>

/// How to draw on this machine. Without a GPU the software scene graph starts in less than half the time and
/// repaints only what changed, so it is chosen there; but whoever has set one of the variables that steer
/// drawing knows better. `deviceFolder` is where the kernel lists its render nodes.
bool prefersSoftwareSceneGraph(const QProcessEnvironment &environment, const QDir &deviceFolder);
