#pragma once

#include <optional>
#include <string>

/// Returns the user's data folder by the XDG base directory specification, or std::nullopt if neither
/// $XDG_DATA_HOME nor $HOME is set. Relative paths are ignored.
std::optional<std::string> userDataFolder();
