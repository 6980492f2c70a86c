#pragma once

#include <QString>

/// What a task switcher calls the window: the title of the document on one line of bounded length, and the
/// program's name. Nothing in the title can turn the direction of the name around, or hide.
QString windowTitle(const QString &documentTitle);
