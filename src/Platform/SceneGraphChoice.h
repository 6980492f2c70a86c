#pragma once

#include <QDir>
#include <QProcessEnvironment>

/// Returns whether to use the software scene graph: if there is no GPU and no environment variable selects a
/// backend. Without a GPU it starts in less than half the time and repaints only damaged areas.
/// `deviceFolder` contains the kernel's render nodes.
bool prefersSoftwareSceneGraph(const QProcessEnvironment &environment, const QDir &deviceFolder);
