#pragma once

#include <QString>

/// Returns the message for the user when the window's contents cannot be loaded. `errors` are the lines of
/// the QML engine. Names each QML module that is not installed; other errors are passed on as they are.
QString startFailure(const QString &errors);
