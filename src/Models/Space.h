#pragma once

#include <QString>

#include <array>
#include <optional>

/// The three fixed places that documents live in, in the order in which they are always shown.
enum class Space { ideas, work, journal };

inline constexpr std::array allSpaces{Space::ideas, Space::work, Space::journal};

/// The name under which the space stands in the data file.
QString rawValue(Space space);

/// What the space is called on screen.
QString displayName(Space space);

/// The space of that exact name, or nothing.
std::optional<Space> spaceFromRawValue(QAnyStringView raw);
