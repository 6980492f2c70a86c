#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// A JSON value, as RFC 8259 has it: strings are kept as UTF-8, numbers as doubles, and of members with one
/// name the last counts.
struct PlainJson {
    using Array = std::vector<PlainJson>;
    using Object = std::map<std::string, PlainJson>;

    std::variant<std::nullptr_t, bool, double, std::string, Array, Object> value;
};

/// Reads a text letter by letter, with nothing in common with the program's parser but the rules: nothing for
/// what is no JSON, for a lone surrogate, for a number beyond a double or an integer beyond 64 bits, and for
/// brackets more than 1023 deep.
std::optional<PlainJson> parsePlainJson(std::string_view text);
