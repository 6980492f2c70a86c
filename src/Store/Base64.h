#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>

/// Base64 with the standard alphabet and padding, for data files full of pictures: Qt's own is ten times
/// slower and needs a second pass to escape the slashes.

inline constexpr std::string_view base64Alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Returns the largest size of the escaped text: eight characters for each group of three bytes.
constexpr qsizetype longestEscapedBase64(qsizetype byteCount)
{
    return (byteCount + 2) / 3 * 8;
}

/// Writes `bytes` as it stands inside a JSON string, with "/" as "\/", and returns the end of what was
/// written. There must be room for `longestEscapedBase64`.
char *encodeEscapedBase64(QByteArrayView bytes, char *out);

/// Returns std::nullopt if a character is not in the alphabet or the padding is missing or wrong. Unused bits
/// of the last character are ignored.
std::optional<QByteArray> decodeBase64(std::string_view text);
