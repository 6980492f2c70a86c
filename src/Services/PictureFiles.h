#pragma once

#include "Services/Scheduler.h"

#include <QByteArray>

#include <filesystem>
#include <optional>

/// The files that pictures are taken from.
class PictureFiles
{
public:
    /// Nothing where the file cannot be read.
    using Completion = std::function<void(const std::optional<QByteArray> &)>;

    virtual ~PictureFiles() = default;

    /// Reads the whole file without holding up the interface, and hands its bytes over on the interface
    /// thread, unless what is returned has been dropped by then.
    [[nodiscard]] virtual ScheduledCall read(const std::filesystem::path &file, Completion completion) = 0;
};
