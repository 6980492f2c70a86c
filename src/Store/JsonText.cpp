#include "Store/JsonText.h"

#include "Store/Base64.h"
#include "Store/UuidText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

using namespace Qt::StringLiterals;

namespace
{
// Long strings and pictures go through the buffer in slices of this many units, so that it stays small.
constexpr qsizetype slice = 3 * 4096;
constexpr qsizetype longestCharacter = 6; // "\u0000"

char *putEscaped(char *out, char16_t character)
{
    constexpr char digits[] = "0123456789abcdef";
    *out++ = '\\';
    switch (character) {
    case u'"':
    case u'\\':
    case u'/':
        *out++ = static_cast<char>(character);
        return out;
    case u'\n':
        *out++ = 'n';
        return out;
    case u'\t':
        *out++ = 't';
        return out;
    default:
        std::memcpy(out, "u00", 3);
        out[3] = digits[character >> 4];
        out[4] = digits[character & 15];
        return out + 5;
    }
}

char *putUtf8(char *out, char32_t character)
{
    const auto continuation = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (character < 0x800) {
        *out++ = static_cast<char>(0xC0 | character >> 6);
    } else if (character < 0x10000) {
        *out++ = static_cast<char>(0xE0 | character >> 12);
        *out++ = continuation(character >> 6);
    } else {
        *out++ = static_cast<char>(0xF0 | character >> 18);
        *out++ = continuation(character >> 12);
        *out++ = continuation(character >> 6);
    }
    *out++ = continuation(character);
    return out;
}

/// Returns the code point at `index` and moves `index` to its last unit.
char32_t codePointAt(QStringView string, qsizetype &index)
{
    const QChar unit = string[index];
    if (!unit.isSurrogate())
        return unit.unicode();
    if (unit.isHighSurrogate() && index + 1 < string.size() && string[index + 1].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, string[++index]);
    return QChar::ReplacementCharacter;
}
} // namespace

JsonText::JsonText(ByteSink &sink) : m_sink(&sink) {}

void JsonText::put(QByteArrayView json)
{
    if (m_sink && json.size() >= drainAt) { // copying it into the buffer would gain nothing
        drain();
        if (!m_error)
            m_error = m_sink->write(json);
        return;
    }
    char *out = room(json.size());
    std::ranges::copy(json, out);
    advanceTo(out + json.size());
}

void JsonText::putString(QStringView string)
{
    put("\"");
    for (qsizetype index = 0; index < string.size();) {
        const qsizetype end = std::min(index + slice, string.size());
        char *out = room((end - index) * longestCharacter);
        for (; index < end; ++index) {
            const char16_t unit = string[index].unicode();
            if (unit < 0x20 || unit == u'"' || unit == u'\\' || unit == u'/')
                out = putEscaped(out, unit);
            else if (unit < 0x80)
                *out++ = static_cast<char>(unit);
            else
                out = putUtf8(out, codePointAt(string, index));
        }
        advanceTo(out);
    }
    put("\"");
}

void JsonText::putUuid(const QUuid &uuid)
{
    const UuidText text = uuidToText(uuid);
    put("\"");
    put(QByteArrayView(text.data(), qsizetype(text.size())));
    put("\"");
}

void JsonText::putNumber(double number)
{
    if (!std::isfinite(number)) {
        m_error = FileError(FileError::Problem::undefinedDate);
        return;
    }
    // As an integer, a number beyond 64 bits would be unreadable and -0 would lose its sign.
    constexpr double exactIntegers = 9'007'199'254'740'992; // 2^53
    const bool exponent = std::abs(number) >= exactIntegers || (number == 0 && std::signbit(number));
    std::array<char, 32> text;
    const auto [end, error] =
        exponent ? std::to_chars(text.begin(), text.end(), number, std::chars_format::scientific)
                 : std::to_chars(text.begin(), text.end(), number);
    Q_ASSERT(error == std::errc());
    put(QByteArrayView(text.data(), end - text.data()));
}

void JsonText::putBool(bool value)
{
    put(value ? "true" : "false");
}

void JsonText::putBytes(QByteArrayView bytes)
{
    put("\"");
    while (!bytes.isEmpty()) {
        const QByteArrayView part = bytes.first(std::min(slice, bytes.size()));
        advanceTo(encodeEscapedBase64(part, room(longestEscapedBase64(part.size()))));
        bytes = bytes.sliced(part.size());
    }
    put("\"");
}

std::optional<FileError> JsonText::finish()
{
    drain();
    return m_error;
}

QByteArray JsonText::take()
{
    const QByteArray text(m_bytes.constData(), m_size); // without unused capacity
    m_size = 0;
    return text;
}

void JsonText::inheritError(const JsonText &other)
{
    if (!m_error)
        m_error = other.m_error;
}

char *JsonText::room(qsizetype count)
{
    if (m_sink && m_size >= drainAt)
        drain();
    if (m_bytes.size() < m_size + count)
        m_bytes.resize(std::max(m_size + count, 2 * m_bytes.size()));
    return m_bytes.data() + m_size;
}

void JsonText::advanceTo(const char *end)
{
    m_size = end - m_bytes.constData();
}

void JsonText::drain()
{
    if (m_sink && !m_error && m_size > 0)
        m_error = m_sink->write(QByteArrayView(m_bytes.constData(), m_size));
    if (m_sink)
        m_size = 0;
}
