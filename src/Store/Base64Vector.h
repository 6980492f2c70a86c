#pragma once

#include <cstddef>

/// Base64 in the registers of the processor, where it has them and this program knows them.
namespace Base64Vector
{

/// How much was encoded, in bytes from the front, and where its text ends.
struct Encoded {
    std::size_t bytes = 0;
    char *end = nullptr;
};

/// Encodes as many whole groups of three bytes as it can, with "/" as "\/"; the caller does the rest. There
/// must be room for the longest text of all bytes.
Encoded encode(const char *bytes, std::size_t count, char *out);

} // namespace Base64Vector
