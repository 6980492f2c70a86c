#include "Store/UuidText.h"

namespace
{
constexpr int byteCount = 16;

constexpr bool hyphenBefore(int byte)
{
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

/// The value of each hexadecimal digit, and -1 for every other character.
constexpr auto hexValues = [] {
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (unsigned digit = 0; digit < 10; ++digit)
        values['0' + digit] = static_cast<signed char>(digit);
    for (unsigned letter = 0; letter < 6; ++letter)
        values['a' + letter] = values['A' + letter] = static_cast<signed char>(10 + letter);
    return values;
}();

constexpr int hexValue(char digit)
{
    return hexValues[static_cast<unsigned char>(digit)];
}
} // namespace

UuidText uuidToText(const QUuid &uuid)
{
    constexpr char digits[] = "0123456789ABCDEF";
    const QByteArray bytes = uuid.toRfc4122();
    UuidText text;
    auto out = text.begin();
    for (int index = 0; index < byteCount; ++index) {
        const auto byte = static_cast<unsigned char>(bytes[index]);
        if (hyphenBefore(index))
            *out++ = '-';
        *out++ = digits[byte >> 4];
        *out++ = digits[byte & 15];
    }
    return text;
}

std::optional<QUuid> uuidFromText(std::string_view text)
{
    if (text.size() != UuidText().size())
        return std::nullopt;
    std::array<char, byteCount> bytes;
    auto in = text.begin();
    for (int index = 0; index < byteCount; ++index) {
        if (hyphenBefore(index) && *in++ != '-')
            return std::nullopt;
        const int high = hexValue(*in++);
        const int low = hexValue(*in++);
        if (high < 0 || low < 0)
            return std::nullopt;
        bytes[index] = static_cast<char>(high << 4 | low);
    }
    return QUuid::fromRfc4122(QByteArrayView(bytes.data(), byteCount));
}
