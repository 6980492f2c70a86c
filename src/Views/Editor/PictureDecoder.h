#pragma once

#include <QByteArray>
#include <QImage>

/// Decodes picture files of all formats for which Qt has plugins. Untrusted input: pictures that cannot be
/// decoded, or need too much memory, are null. Thread-safe.
namespace PictureDecoder
{

/// Returns the upright size of the picture if its first bytes contain it, otherwise an empty size.
QSize sizeOf(const QByteArray &bytes);

/// Returns the upright picture, scaled to cover `wanted` pixels; photos are never enlarged.
QImage decode(const QByteArray &bytes, const QSize &wanted);

} // namespace PictureDecoder
