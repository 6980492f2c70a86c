#pragma once

#include "Services/Scheduler.h"

#include <QByteArray>

#include <filesystem>
#include <optional>

/// Reads picture files.
class PictureFiles
{
public:
    /// std::nullopt if the file cannot be read.
    using Completion = std::function<void(const std::optional<QByteArray> &)>;

    virtual ~PictureFiles() = default;

    /// Reads the whole file asynchronously. Calls `completion` on the interface thread, unless the returned
    /// ScheduledCall is destroyed first.
    [[nodiscard]] virtual ScheduledCall read(const std::filesystem::path &file, Completion completion) = 0;
};
