#pragma once

#include <QString>

#include <array>
#include <optional>

/// The three fixed spaces of documents, in the order in which they are shown.
enum class Space { ideas, work, journal };

inline constexpr std::array allSpaces{Space::ideas, Space::work, Space::journal};

/// Returns whether the tasks panel can be shown in the space.
constexpr bool offersTasks(Space space)
{
    return space == Space::work;
}

/// Returns the name of the space in the data file.
QString rawValue(Space space);

/// Returns the name of the space for the user.
QString displayName(Space space);

/// Returns the space with this exact name, or std::nullopt.
std::optional<Space> spaceFromRawValue(QAnyStringView raw);
