#pragma once

#include <QString>

/// Returns the title of the window: the document's title, on one line of bounded length, and the program's
/// name. Direction characters in the title are removed, so that they cannot reverse the program's name.
QString windowTitle(const QString &documentTitle);
