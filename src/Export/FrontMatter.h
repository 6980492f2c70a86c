#pragma once

#include "Models/PelkoDocument.h"

/// What is to be known of a page besides its text, as the block of YAML that stands before Markdown: title,
/// space, dates in ISO 8601 and UTC, marks that are set, and the id. A date beyond the calendar is left out.
QString frontMatter(const PelkoDocument &document);
