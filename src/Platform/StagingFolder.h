#pragma once

#include "Platform/FileDescriptor.h"

/// A hidden folder inside another one, for files that are to appear there all at once. It goes with its
/// owner, and with everything that is still in it; one that a killed process left behind goes with the next.
class StagingFolder
{
public:
    StagingFolder() = default;
    ~StagingFolder();
    Q_DISABLE_COPY_MOVE(StagingFolder)

    [[nodiscard]] std::optional<FileError> create(const std::filesystem::path &folder);

    const std::filesystem::path &path() const { return m_path; }

    /// Returns when everything on its disk has reached it.
    [[nodiscard]] std::optional<FileError> sync() const;

private:
    static void removeAbandoned(const std::filesystem::path &folder);

    std::filesystem::path m_path; // empty until it is made
    FileDescriptor m_descriptor;  // locked: somebody is at work here
};
