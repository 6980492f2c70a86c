#pragma once

#include "Services/DocumentFile.h"

#include <filesystem>
#include <vector>

/// Files on their way to where they belong. Until it is kept, all of it can be undone, and is with its end:
/// what was moved in is removed, what was there before comes back, folders that were made go.
class Installation
{
public:
    Installation() = default;
    ~Installation();
    Installation(const Installation &) = delete;
    Installation &operator=(const Installation &) = delete;

    /// Makes the folder, and those above it, as far as they are missing.
    [[nodiscard]] std::optional<FileError> makeFolder(const std::filesystem::path &folder);

    /// Moves a file to a place that is free.
    [[nodiscard]] std::optional<FileError> moveIn(const std::filesystem::path &file,
                                                  const std::filesystem::path &target);

    /// Moves a file out of the way, if there is one: to `aside`, on the same disk.
    [[nodiscard]] std::optional<FileError> moveAside(const std::filesystem::path &target,
                                                     const std::filesystem::path &aside);

    /// What was done stays.
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
