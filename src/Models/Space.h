#pragma once

#include <QString>

#include <array>
#include <optional>

/// The three fixed places that documents live in, in the order in which they are always shown.
enum class Space { ideas, work, journal };

inline constexpr std::array allSpaces{Space::ideas, Space::work, Space::journal};

/// Whether the tasks panel can be shown beside the documents of that space.
constexpr bool offersTasks(Space space)
{
    return space == Space::work;
}

/// The name under which the space stands in the data file.
QString rawValue(Space space);

/// What the space is called on screen.
QString displayName(Space space);

/// Returns the space with this exact name, or std::nullopt.
std::optional<Space> spaceFromRawValue(QAnyStringView raw);
