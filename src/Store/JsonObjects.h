#pragma once

#include <optional>
#include <string_view>
#include <vector>

/// Where an object lies in a text.
struct ObjectPlace {
    std::size_t start = 0;
    std::size_t size = 0;
};

/// Finds the objects of the JSON array that begins at `start`, so that they can be parsed one at a time. It
/// looks at nothing but the strings and braces in them: the text is one valid array of objects exactly when
/// places are found and each of them holds one valid object.
///
/// An object of fewer than `shortest` bytes is taken for a fault, so that what is found is bounded by the
/// text.
std::optional<std::vector<ObjectPlace>> findObjects(std::string_view text, std::size_t start,
                                                    std::size_t shortest);
