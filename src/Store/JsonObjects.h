#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

/// Consecutive objects of an array, from the character before the first to the one after the last. With these
/// two characters replaced by brackets, the text between is an array of its own.
struct ObjectRun {
    std::size_t start = 0;
    std::size_t size = 0;
    std::ptrdiff_t objects = 0;

    bool operator==(const ObjectRun &) const = default;
};

/// Limits for `findObjects`, in bytes.
struct ObjectLengths {
    /// A shorter object is an error, which bounds the number of objects.
    std::size_t shortest = 0;
    /// The minimum length of a run.
    std::size_t run = 0;
};

/// Finds the objects of the JSON array that begins at `start`, so that they can be parsed run by run. Looks
/// at strings and braces only: the text is a valid array of objects exactly if runs are found and each of
/// them is one.
std::optional<std::vector<ObjectRun>> findObjects(std::string_view text, std::size_t start,
                                                  const ObjectLengths &lengths);
