#pragma once

#include "Platform/FileDescriptor.h"

/// A hidden temporary folder inside another one, for files that are to be moved into place together. The
/// destructor removes it with its contents. `removeAbandoned` removes those of killed processes.
class StagingFolder
{
public:
    StagingFolder() = default;
    ~StagingFolder();
    Q_DISABLE_COPY_MOVE(StagingFolder)

    [[nodiscard]] std::optional<FileError> create(const std::filesystem::path &folder);

    const std::filesystem::path &path() const { return m_path; }

    /// Synchronises the whole file system it is on.
    [[nodiscard]] std::optional<FileError> sync() const;

private:
    static void removeAbandoned(const std::filesystem::path &folder);

    std::filesystem::path m_path; // empty until it is made
    FileDescriptor m_descriptor;  // locked while the folder is in use
};
