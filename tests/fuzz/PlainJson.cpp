#include "PlainJson.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace
{
constexpr int deepest = 1023;
constexpr char32_t noCharacter = 0xFFFF'FFFF;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

void putUtf8(std::string &out, char32_t code)
{
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (code < 0x80) {
        put(code);
        return;
    }
    if (code < 0x800) {
        put(0xC0 | code >> 6);
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
    } else {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
    }
    put(0x80 | (code & 0x3F));
}

/// Each function consumes its part of the text and returns false if it is not JSON.
class Parser
{
public:
    explicit Parser(std::string_view text) : m_text(text) {}

    bool document(PlainJson &json) { return value(json, 0) && (skipSpace(), m_text.empty()); }

private:
    bool value(PlainJson &json, int depth)
    {
        skipSpace();
        if (m_text.empty())
            return false;
        switch (m_text.front()) {
        case '[':
            return array(json.value.emplace<PlainJson::Array>(), depth + 1);
        case '{':
            return object(json.value.emplace<PlainJson::Object>(), depth + 1);
        case '"':
            return string(json.value.emplace<std::string>());
        case 't':
            json.value = true;
            return take("true");
        case 'f':
            json.value = false;
            return take("false");
        case 'n':
            json.value = nullptr;
            return take("null");
        default:
            return number(json.value.emplace<double>());
        }
    }

    bool array(PlainJson::Array &elements, int depth)
    {
        take("[");
        skipSpace();
        if (take("]"))
            return true;
        if (depth > deepest)
            return false;
        do {
            if (!value(elements.emplace_back(), depth))
                return false;
            skipSpace();
        } while (take(","));
        return take("]");
    }

    bool object(PlainJson::Object &members, int depth)
    {
        take("{");
        skipSpace();
        if (take("}"))
            return true;
        if (depth > deepest)
            return false;
        do {
            std::string name;
            PlainJson member;
            skipSpace();
            if (!string(name) || (skipSpace(), !take(":")) || !value(member, depth))
                return false;
            members.insert_or_assign(std::move(name), std::move(member));
            skipSpace();
        } while (take(","));
        return take("}");
    }

    bool string(std::string &out)
    {
        if (!take("\""))
            return false;
        while (!take("\"")) {
            if (m_text.empty())
                return false;
            const char32_t code = m_text.front() == '\\' ? escape() : plain();
            if (code == noCharacter)
                return false;
            putUtf8(out, code);
        }
        return true;
    }

    /// Reads one character of valid UTF-8: shortest form, no surrogate, at most U+10FFFF.
    char32_t plain()
    {
        const unsigned char first = byte();
        if (first < 0x80)
            return first < 0x20 ? noCharacter : first;
        const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
        if (more == 0 || first > 0xF7)
            return noCharacter;
        char32_t code = first & (0x3F >> more);
        for (int index = 0; index < more; ++index) {
            if (m_text.empty() || (m_text.front() & 0xC0) != 0x80)
                return noCharacter;
            code = code << 6 | (byte() & 0x3F);
        }
        constexpr char32_t shortest[] = {0, 0x80, 0x800, 0x10000};
        const bool isSurrogate = code >= 0xD800 && code < 0xE000;
        return code < shortest[more] || code > 0x10FFFF || isSurrogate ? noCharacter : code;
    }

    char32_t escape()
    {
        take("\\");
        if (m_text.empty())
            return noCharacter;
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
        const char letter = static_cast<char>(byte());
        if (const auto known = letters.find(letter); known != letters.npos)
            return static_cast<char32_t>(meanings[known]);
        if (letter != 'u')
            return noCharacter;
        const char32_t unit = fourDigits();
        if (unit < 0xD800 || unit >= 0xE000)
            return unit;
        const char32_t second = unit < 0xDC00 && take("\\u") ? fourDigits() : noCharacter;
        const bool isPair = second >= 0xDC00 && second < 0xE000;
        return isPair ? 0x10000 + ((unit - 0xD800) << 10) + (second - 0xDC00) : noCharacter;
    }

    char32_t fourDigits()
    {
        unsigned unit = 0;
        const auto digits = m_text.substr(0, 4);
        const auto [end, error] = std::from_chars(digits.begin(), digits.end(), unit, 16);
        if (digits.size() < 4 || error != std::errc() || end != digits.end())
            return noCharacter;
        m_text.remove_prefix(4);
        return unit;
    }

    bool number(double &out)
    {
        const std::string_view start = m_text;
        const bool isNegative = take("-");
        if (!take("0") && !digits())
            return false;
        bool isInteger = true;
        if (take(".")) {
            isInteger = false;
            if (!digits())
                return false;
        }
        if (take("e") || take("E")) {
            isInteger = false;
            take("+") || take("-");
            if (!digits())
                return false;
        }
        const std::string text(start.substr(0, start.size() - m_text.size()));
        out = std::strtod(text.c_str(), nullptr);
        return std::isfinite(out) && (!isInteger || fitsInteger(text, isNegative));
    }

    static bool fitsInteger(const std::string &text, bool isNegative)
    {
        std::uint64_t whole = 0;
        const char *digits = text.data() + (isNegative ? 1 : 0);
        const auto [end, error] = std::from_chars(digits, text.data() + text.size(), whole);
        return error == std::errc() && (!isNegative || whole <= std::uint64_t(1) << 63);
    }

    bool digits()
    {
        bool some = false;
        for (; !m_text.empty() && isDigit(m_text.front()); some = true)
            m_text.remove_prefix(1);
        return some;
    }

    bool take(std::string_view word)
    {
        const bool found = m_text.starts_with(word);
        m_text.remove_prefix(found ? word.size() : 0);
        return found;
    }

    unsigned char byte()
    {
        const char front = m_text.front();
        m_text.remove_prefix(1);
        return static_cast<unsigned char>(front);
    }

    void skipSpace()
    {
        const auto first = m_text.find_first_not_of(" \t\n\r");
        m_text.remove_prefix(first == m_text.npos ? m_text.size() : first);
    }

    std::string_view m_text;
};
} // namespace

std::optional<PlainJson> parsePlainJson(std::string_view text)
{
    PlainJson json;
    return Parser(text).document(json) ? std::optional(std::move(json)) : std::nullopt;
}
