#pragma once

#include <optional>
#include <string>

/// Where this user's programs keep their data by the rules of free desktops, in the system's own bytes;
/// nothing when the environment names no place. A relative path in the environment is to be ignored.
std::optional<std::string> userDataFolder();
