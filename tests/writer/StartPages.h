#pragma once

#include "Models/PelkoDocument.h"

/// The libraries that random runs start with. Each has an open page of one kind and two more pages.
namespace StartPages
{

/// Returns names such as "checklists" or "lineSeparators".
QStringList names();

QList<PelkoDocument> library(const QString &name);

} // namespace StartPages
