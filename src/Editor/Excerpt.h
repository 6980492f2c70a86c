#pragma once

#include "Editor/BlockSelection.h"

/// The selected blocks, those at the ends cut down to what is selected of them.
QList<Block> excerpt(const PelkoDocument &document, const BlockSelection &selection);
