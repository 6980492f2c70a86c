#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

/// Base64 with the standard alphabet and padding, at the speed of a data file full of pictures: Qt's own is
/// ten times slower, and needs a second pass to escape the slashes.

inline constexpr std::string_view base64Alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// The room that any such bytes fit in: for each three begun four characters, all of them escaped slashes.
constexpr qsizetype longestEscapedBase64(qsizetype byteCount)
{
    return (byteCount + 2) / 3 * 8;
}

/// Writes `bytes` as it stands inside a JSON string, with "/" as "\/", and returns the end of what was
/// written. There must be room for `longestEscapedBase64`.
char *encodeEscapedBase64(QByteArrayView bytes, char *out);

/// Nothing when a character is foreign to the alphabet or the padding is missing or wrong. Bits of the last
/// character that stand for no byte are not looked at.
std::optional<QByteArray> decodeBase64(std::string_view text);
