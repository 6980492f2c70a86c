#pragma once

#include "Models/PelkoDocument.h"

/// Returns the YAML front matter of a page: title, space, dates in ISO 8601 and UTC, flags that are set, and
/// the id. A date out of range is omitted.
QString frontMatter(const PelkoDocument &document);
