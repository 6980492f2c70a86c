#include "Store/Base64Vector.h"

#include "Store/Base64.h"

#if defined(__x86_64__) && defined(__GNUC__)

#    include <array>
#    include <bit>
#    include <cstdint>
#    ifndef __clang__ // GCC 12 warns of registers that its own header means to leave as they are
#        pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#    endif
#    include <immintrin.h>
#    include <vector>

namespace
{
constexpr std::uint8_t nothing = 0x80; // makes the shuffle write a zero byte

/// For each set of slashes among eight characters: how they move apart to make room for the backslashes.
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

/// Returns sixteen numbers of six bits from the first twelve bytes: each group of three bytes is spread over
/// four, and its bits are shifted into place by multiplication.
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

/// Returns the letters of the alphabet, which has five runs: the number to add depends on the run only.
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

__attribute__((target("ssse3,popcnt"))) Base64Vector::Encoded encodeTwelves(const char *bytes,
                                                                            std::size_t count, char *out)
{
    constexpr std::size_t lookedAt = 16;
    std::size_t done = 0;
    for (; done + lookedAt <= count; done += 12) {
        const __m128i text = letters(sixBits(load(bytes + done)));
        // No branch on the existence of slashes: the processor would often predict it wrongly, which costs
        // more.
        const auto slashes = unsigned(_mm_movemask_epi8(_mm_cmpeq_epi8(text, _mm_set1_epi8('/'))));
        out = putEscaped(out, text, slashes & 0xFF);
        out = putEscaped(out, _mm_srli_si128(text, 8), slashes >> 8);
    }
    return {done, out};
}

/// Spreads each group of three bytes over four, so that the six bits of every letter lie in two neighbours,
/// as the shifts need them.
constexpr auto spreadGroups = [] {
    std::array<std::uint8_t, 64> places{};
    for (std::size_t group = 0; group < 16; ++group) {
        const auto byte = static_cast<std::uint8_t>(3 * group);
        places[4 * group] = byte + 1;
        places[4 * group + 1] = byte;
        places[4 * group + 2] = byte + 2;
        places[4 * group + 3] = byte + 1;
    }
    return places;
}();
#    define PELKO_WIDE __attribute__((target("avx512f,avx512bw,avx512vbmi,avx512vbmi2,bmi2,popcnt")))

/// Puts a backslash before every letter and keeps those of slashes.
PELKO_WIDE char *putEscaped(char *out, __m256i text, std::uint32_t slashes)
{
    constexpr std::uint64_t backslashPlaces = 0x5555'5555'5555'5555;
    const __m512i letters = _mm512_slli_epi16(_mm512_cvtepu8_epi16(text), 8);
    const __m512i pairs = _mm512_or_si512(letters, _mm512_set1_epi16('\\'));
    const std::uint64_t kept = _pdep_u64(slashes, backslashPlaces) | ~backslashPlaces;
    _mm512_storeu_si512(out, _mm512_maskz_compress_epi8(kept, pairs));
    return out + 32 + std::popcount(slashes);
}

PELKO_WIDE Base64Vector::Encoded encodeFortyEights(const char *bytes, std::size_t count, char *out)
{
    constexpr std::size_t lookedAt = 64;
    const __m512i places = _mm512_loadu_si512(spreadGroups.data());
    const __m512i alphabetTable = _mm512_loadu_si512(base64Alphabet.data());
    const __m512i shifts = _mm512_set1_epi64(0x3036'242A'1016'040A);
    std::size_t done = 0;
    for (; done + lookedAt <= count; done += 48) {
        const __m512i groups = _mm512_permutexvar_epi8(places, _mm512_loadu_si512(bytes + done));
        const __m512i text =
            _mm512_permutexvar_epi8(_mm512_multishift_epi64_epi8(shifts, groups), alphabetTable);
        const std::uint64_t slashes = _mm512_cmpeq_epi8_mask(text, _mm512_set1_epi8('/'));
        out = putEscaped(out, _mm512_castsi512_si256(text), static_cast<std::uint32_t>(slashes));
        out = putEscaped(out, _mm512_extracti64x4_epi64(text, 1), static_cast<std::uint32_t>(slashes >> 32));
    }
    return {done, out};
}
} // namespace

std::span<const Base64Vector::Encoder> Base64Vector::encoders()
{
    static const auto known = [] {
        std::vector<Encoder> found;
        const bool bits = __builtin_cpu_supports("popcnt");
        if (bits && __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vbmi") &&
            __builtin_cpu_supports("avx512vbmi2") && __builtin_cpu_supports("bmi2"))
            found.push_back(encodeFortyEights);
        if (bits && __builtin_cpu_supports("ssse3"))
            found.push_back(encodeTwelves);
        return found;
    }();
    return known;
}

#else

std::span<const Base64Vector::Encoder> Base64Vector::encoders()
{
    return {};
}

#endif
