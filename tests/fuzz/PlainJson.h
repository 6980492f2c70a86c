#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// A JSON value by RFC 8259: strings as UTF-8, numbers as doubles; the last of duplicate members counts.
struct PlainJson {
    using Array = std::vector<PlainJson>;
    using Object = std::map<std::string, PlainJson>;

    std::variant<std::nullptr_t, bool, double, std::string, Array, Object> value;
};

/// Parses a text character by character, independently of the program's parser. Returns std::nullopt for
/// malformed JSON, lone surrogates, numbers beyond a double, integers beyond 64 bits, and more than 1023
/// nested brackets.
std::optional<PlainJson> parsePlainJson(std::string_view text);
