#include "Store/Base64Vector.h"

#if defined(__x86_64__) && defined(__GNUC__)

#    include <array>
#    include <bit>
#    include <cstdint>
#    include <immintrin.h>

namespace
{
constexpr std::size_t stepIn = 12;
constexpr std::size_t readAhead = 16;  // bytes that a step looks at
constexpr std::uint8_t nothing = 0x80; // the place stays empty when bytes are shuffled

/// How eight characters move apart to make room for the backslashes, for each set of slashes among them.
struct Escape {
    std::array<std::uint8_t, 16> moves{};
    std::array<char, 16> backslashes{};
};

constexpr auto escapes = [] {
    std::array<Escape, 256> table{};
    for (unsigned slashes = 0; slashes < table.size(); ++slashes) {
        Escape &escape = table[slashes];
        escape.moves.fill(nothing);
        std::size_t at = 0;
        for (std::uint8_t character = 0; character < 8; ++character) {
            if (slashes >> character & 1)
                escape.backslashes[at++] = '\\';
            escape.moves[at++] = character;
        }
    }
    return table;
}();

__m128i load(const void *from)
{
    return _mm_loadu_si128(static_cast<const __m128i *>(from));
}

void store(void *to, __m128i value)
{
    _mm_storeu_si128(static_cast<__m128i *>(to), value);
}

/// Sixteen numbers of six bits from the first twelve bytes: each group of three is spread over four, and its
/// bits are shifted into place by multiplying.
__attribute__((target("ssse3,popcnt"))) __m128i sixBits(__m128i bytes)
{
    const __m128i groups =
        _mm_shuffle_epi8(bytes, _mm_set_epi8(10, 11, 9, 10, 7, 8, 6, 7, 4, 5, 3, 4, 1, 2, 0, 1));
    const __m128i even =
        _mm_mulhi_epu16(_mm_and_si128(groups, _mm_set1_epi32(0x0FC0'FC00)), _mm_set1_epi32(0x0400'0040));
    const __m128i odd =
        _mm_mullo_epi16(_mm_and_si128(groups, _mm_set1_epi32(0x003F'03F0)), _mm_set1_epi32(0x0100'0010));
    return _mm_or_si128(even, odd);
}

/// The alphabet has five runs: what is to be added to a number depends on its run only.
__attribute__((target("ssse3,popcnt"))) __m128i letters(__m128i numbers)
{
    const __m128i beyondLetters = _mm_subs_epu8(numbers, _mm_set1_epi8(51)); // 0, or 1 to 12
    const __m128i isCapital = _mm_cmpgt_epi8(_mm_set1_epi8(26), numbers);
    const __m128i run = _mm_or_si128(beyondLetters, _mm_and_si128(isCapital, _mm_set1_epi8(13)));
    const __m128i offsets =
        _mm_setr_epi8('a' - 26, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52,
                      '0' - 52, '0' - 52, '0' - 52, '+' - 62, '/' - 63, 'A', 0, 0);
    return _mm_add_epi8(_mm_shuffle_epi8(offsets, run), numbers);
}

__attribute__((target("ssse3,popcnt"))) char *putEscaped(char *out, __m128i text, unsigned slashes)
{
    const Escape &escape = escapes[slashes];
    const __m128i apart = _mm_shuffle_epi8(text, load(escape.moves.data()));
    store(out, _mm_or_si128(apart, load(escape.backslashes.data())));
    return out + 8 + std::popcount(slashes);
}

__attribute__((target("ssse3,popcnt"))) Base64Vector::Encoded encodeSteps(const char *bytes,
                                                                          std::size_t count, char *out)
{
    std::size_t done = 0;
    for (; done + readAhead <= count; done += stepIn) {
        const __m128i text = letters(sixBits(load(bytes + done)));
        // With or without slashes: to tell them apart takes the processor longer, as it cannot foresee which
        // it is.
        const auto slashes = unsigned(_mm_movemask_epi8(_mm_cmpeq_epi8(text, _mm_set1_epi8('/'))));
        out = putEscaped(out, text, slashes & 0xFF);
        out = putEscaped(out, _mm_srli_si128(text, 8), slashes >> 8);
    }
    return {done, out};
}
} // namespace

Base64Vector::Encoded Base64Vector::encode(const char *bytes, std::size_t count, char *out)
{
    static const bool known = __builtin_cpu_supports("ssse3") && __builtin_cpu_supports("popcnt");
    return known ? encodeSteps(bytes, count, out) : Encoded{0, out};
}

#else

Base64Vector::Encoded Base64Vector::encode(const char *, std::size_t, char *out)
{
    return {0, out};
}

#endif
