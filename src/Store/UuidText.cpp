#include "Store/UuidText.h"

namespace
{
constexpr int byteCount = 16;

constexpr bool hyphenBefore(int byte)
{
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

constexpr int hexValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const char lower = char(digit | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
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
