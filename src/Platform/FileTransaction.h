#pragma once

#include "Services/DocumentFile.h"

#include <filesystem>
#include <vector>

/// Moves files to their destinations as one unit. Unless it is kept, the destructor rolls back: it removes
/// the files moved in, restores the files they replaced, and removes the folders it made.
class FileTransaction
{
public:
    FileTransaction() = default;
    ~FileTransaction();
    FileTransaction(const FileTransaction &) = delete;
    FileTransaction &operator=(const FileTransaction &) = delete;

    /// Makes the folder and its parents, as far as they are missing.
    [[nodiscard]] std::optional<FileError> makeFolder(const std::filesystem::path &folder);

    /// Moves a file to `target`. An error if something exists there.
    [[nodiscard]] std::optional<FileError> moveIn(const std::filesystem::path &file,
                                                  const std::filesystem::path &target);

    /// Moves an existing file from `target` to `aside`, on the same disk. Does nothing if there is none.
    [[nodiscard]] std::optional<FileError> moveAside(const std::filesystem::path &target,
                                                     const std::filesystem::path &aside);

    /// Keeps the changes: the destructor will not roll back.
    void keep() { m_steps.clear(); }

private:
    struct Step {
        enum class Kind { madeFolder, movedIn, movedAside } kind;
        std::filesystem::path target;
        std::filesystem::path aside = {};
    };

    static void undo(const Step &step);

    std::vector<Step> m_steps;
};
