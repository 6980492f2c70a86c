#pragma once

#include "Models/PelkoDocument.h"

/// Libraries of known size, the same in each run.
enum class LibrarySize {
    pages,    ///< fifteen pages: 48 KB
    sparks,   ///< and ten thousand sparks: 4.9 MB
    words,    ///< and ten thousand sparks of a hundred words: a million words
    pictures, ///< and sixty photos: 244 MB
};

QList<PelkoDocument> makeLibrary(LibrarySize size);
