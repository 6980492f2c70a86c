#pragma once

#include <QStringList>

/// The keys of a combination, one after the other, as they are labelled on keyboards of the user's language.
/// `combination` is in portable words, such as "Ctrl+Shift+E"; an empty one has no keys.
QStringList keyNames(const QString &combination);
