#pragma once

#include "Editor/BlockSelection.h"

/// Returns the selected blocks, with those at the ends cut to the selected part.
QList<Block> excerpt(const PelkoDocument &document, const BlockSelection &selection);
