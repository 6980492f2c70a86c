#pragma once

#include "Editor/Edit.h"

/// Operations on pictures. They take the page and return the changed one, or std::nullopt if the block is
/// unknown.
namespace ImageOperations
{

/// Stores the bytes of a picture file, unchanged, in the block.
std::optional<Edit> setImageData(PelkoDocument document, const QUuid &blockID, const QByteArray &bytes);

/// Adds a picture after the block and scrolls to it; the focus is not changed.
std::optional<Edit> insertImage(PelkoDocument document, const QUuid &blockID, const QByteArray &bytes);

/// Stores the text of the field over a banner; `caret` is the position of the caret in `title`. A title has
/// one line: line breaks and tabs become spaces.
std::optional<Edit> setBannerTitle(PelkoDocument document, const QUuid &blockID, const QString &title,
                                   int caret);

} // namespace ImageOperations
