#pragma once

#include "Models/PelkoDocument.h"

/// The libraries that random runs start from: each has a page of its own kind, which is open, and two more.
namespace StartPages
{

/// Such as "checklists" or "lineSeparators".
QStringList names();

QList<PelkoDocument> library(const QString &name);

} // namespace StartPages
