#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

/// Neighbours among the objects of an array, from the character before the first to the one after the last:
/// put brackets in these two places, and the text between is an array of its own.
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

/// Finds the objects of the JSON array that begins at `start`, so that they can be parsed run by run. It
/// looks at nothing but the strings and braces in them: the text is one valid array of objects exactly when
/// runs are found and each of them is one.
std::optional<std::vector<ObjectRun>> findObjects(std::string_view text, std::size_t start,
                                                  const ObjectLengths &lengths);
