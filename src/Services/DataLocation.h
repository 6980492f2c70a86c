#pragma once

#include <filesystem>
#include <optional>

/// Where this user's programs keep their data. Paths are the system's own bytes: a QString could not name
/// every folder there may be.
class DataLocation
{
public:
    virtual ~DataLocation() = default;

    /// The application-support directory, which need not exist yet; nothing when the system names none.
    virtual std::optional<std::filesystem::path> applicationSupportDirectory() const = 0;
};
