#include "Store/Base64.h"

#include "Store/Base64Vector.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace
{
constexpr std::uint32_t foreign = 0x0100'0000; // above the 24 bits of four characters

/// Two characters of base64 as JSON text: two to four bytes.
struct EscapedPair {
    std::array<char, 4> text{};
    std::uint8_t size = 0;

    constexpr void append(char character)
    {
        if (character == '/')
            text[size++] = '\\';
        text[size++] = character;
    }
};

constexpr auto escapedPairs = [] {
    std::array<EscapedPair, 4096> pairs{};
    for (std::size_t bits = 0; bits < pairs.size(); ++bits) {
        pairs[bits].append(base64Alphabet[bits >> 6]);
        pairs[bits].append(base64Alphabet[bits & 63]);
    }
    return pairs;
}();

/// For each of the four places in a group: the bits of a character there, or `foreign`.
constexpr auto decodedBits = [] {
    std::array<std::array<std::uint32_t, 256>, 4> places{};
    for (std::size_t place = 0; place < places.size(); ++place) {
        places[place].fill(foreign);
        for (std::uint32_t value = 0; value < base64Alphabet.size(); ++value)
            places[place][static_cast<unsigned char>(base64Alphabet[value])] = value << (18 - 6 * place);
    }
    return places;
}();

char *putPair(char *out, unsigned bits)
{
    const EscapedPair &pair = escapedPairs[bits];
    std::memcpy(out, pair.text.data(), pair.text.size());
    return out + pair.size;
}

/// Encodes the last one or two bytes, which make no whole group.
char *putRest(char *out, const unsigned char *in, qsizetype count)
{
    const unsigned second = count == 2 ? in[1] : 0;
    out = putPair(out, unsigned(in[0]) << 4 | second >> 4);
    if (count == 1) {
        *out++ = '=';
        *out++ = '=';
        return out;
    }
    // "A" stands for six zero bits, so the first character of this pair is the wanted one.
    out = putPair(out, (second & 15) << 8);
    out[-1] = '=';
    return out;
}

std::uint32_t groupBits(const char *text)
{
    const auto *in = reinterpret_cast<const unsigned char *>(text);
    return decodedBits[0][in[0]] | decodedBits[1][in[1]] | decodedBits[2][in[2]] | decodedBits[3][in[3]];
}

void putGroup(char *out, std::uint32_t bits)
{
    out[0] = static_cast<char>(bits >> 16);
    out[1] = static_cast<char>(bits >> 8);
    out[2] = static_cast<char>(bits);
}

std::size_t paddingOf(std::string_view text)
{
    return text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
}
} // namespace

char *encodeEscapedBase64(QByteArrayView bytes, char *out)
{
    static const std::span<const Base64Vector::Encoder> encoders = Base64Vector::encoders();
    Base64Vector::Encoded begun{.bytes = 0, .end = out};
    if (!encoders.empty())
        begun = encoders.front()(bytes.data(), std::size_t(bytes.size()), out);
    out = begun.end;
    const auto *in = reinterpret_cast<const unsigned char *>(bytes.data()) + begun.bytes;
    const qsizetype rest = bytes.size() % 3;
    const auto *end = reinterpret_cast<const unsigned char *>(bytes.data()) + bytes.size() - rest;
    for (; in != end; in += 3) {
        const unsigned bits = unsigned(in[0]) << 16 | unsigned(in[1]) << 8 | in[2];
        out = putPair(out, bits >> 12);
        out = putPair(out, bits & 4095);
    }
    return rest > 0 ? putRest(out, in, rest) : out;
}

std::optional<QByteArray> decodeBase64(std::string_view text)
{
    if (text.empty())
        return QByteArray("");
    if (text.size() % 4 != 0)
        return std::nullopt;
    const std::size_t padding = paddingOf(text);
    std::array<char, 4> lastGroup{'A', 'A', 'A', 'A'}; // "A" stands for six zero bits
    text.substr(text.size() - 4, 4 - padding).copy(lastGroup.data(), lastGroup.size());
    text.remove_suffix(4);

    const auto wholeBytes = qsizetype(text.size()) / 4 * 3;
    QByteArray bytes(wholeBytes + 3 - qsizetype(padding), Qt::Uninitialized);
    char *out = bytes.data();
    std::uint32_t all = groupBits(lastGroup.data());
    std::array<char, 3> lastBytes;
    putGroup(lastBytes.data(), all);
    std::copy_n(lastBytes.data(), 3 - padding, out + wholeBytes);
    for (std::size_t at = 0; at < text.size(); at += 4, out += 3) {
        const std::uint32_t bits = groupBits(text.data() + at);
        putGroup(out, bits);
        all |= bits;
    }
    return all & foreign ? std::nullopt : std::optional(bytes);
}
