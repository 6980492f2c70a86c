#pragma once

#include "Editor/Edit.h"

/// The operations on pictures: a page in, the changed page out, or nothing where the block is unknown.
namespace ImageOperations
{

/// Fills the block with the bytes of a picture file, which are kept as they are.
std::optional<Edit> setImageData(PelkoDocument document, const QUuid &blockID, const QByteArray &bytes);

/// Adds a picture right after the block and brings it into sight; the focus stays where it is.
std::optional<Edit> insertImage(PelkoDocument document, const QUuid &blockID, const QByteArray &bytes);

/// Stores what the field over a banner reports, `caret` being where the caret stood in `title`. A title is
/// one line: line breaks and tabs that come in become spaces.
std::optional<Edit> setBannerTitle(PelkoDocument document, const QUuid &blockID, const QString &title,
                                   int caret);

} // namespace ImageOperations
