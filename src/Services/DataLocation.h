#pragma once

#include <filesystem>
#include <optional>

/// The folder for application data. Paths are std::filesystem::path because a QString cannot represent every
/// POSIX path.
class DataLocation
{
public:
    virtual ~DataLocation() = default;

    /// The application-support directory, which need not exist yet, or std::nullopt if the environment sets
    /// none.
    virtual std::optional<std::filesystem::path> applicationSupportDirectory() const = 0;
};
