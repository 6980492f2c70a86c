#pragma once

#include <QString>

/// Returns the message for the user when the window's contents cannot be loaded. `errors` are the messages of
/// the QML engine. QML modules that are not installed are named; other errors are returned unchanged.
QString startFailure(const QString &errors);
