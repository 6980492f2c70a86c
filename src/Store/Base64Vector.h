#pragma once

#include <cstddef>
#include <span>

/// Base64 with SIMD instructions, as far as the processor has them.
namespace Base64Vector
{

/// The number of bytes that were encoded, from the front, and the end of their text.
struct Encoded {
    std::size_t bytes = 0;
    char *end = nullptr;
};

/// Encodes whole groups of three bytes, with "/" as "\/", until fewer than 64 bytes are left; the caller does
/// the rest. There must be room for the longest text of all bytes.
using Encoder = Encoded (*)(const char *bytes, std::size_t count, char *out);

/// Returns the encoders that this processor supports, the fastest first.
std::span<const Encoder> encoders();

} // namespace Base64Vector
