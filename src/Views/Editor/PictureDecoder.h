#pragma once

#include <QByteArray>
#include <QImage>

/// Makes pictures of the bytes of picture files, whatever formats the desktop has decoders for. Bytes may
/// come from anywhere: what cannot be decoded, or would take unreasonable memory, is a null picture. All of
/// it may be called from any thread.
namespace PictureDecoder
{

/// How large the picture is, upright, when its first bytes tell; else an empty size.
QSize sizeOf(const QByteArray &bytes);

/// The picture, upright, just large enough to cover `wanted` pixels; a photo is never made larger than it is.
QImage decode(const QByteArray &bytes, const QSize &wanted);

} // namespace PictureDecoder
