#pragma once

#include <QStringList>

/// Returns the keys of a combination in their order, as they are labelled on keyboards of the user's
/// language. `combination` is in Qt's portable format, such as "Ctrl+Shift+E".
QStringList keyNames(const QString &combination);
