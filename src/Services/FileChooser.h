#pragma once

#include "Services/DocumentFile.h"
#include "Services/Scheduler.h"

#include <QList>

#include <filesystem>

/// Lets the user choose from their files and folders.
class FileChooser
{
public:
    enum class Target {
        picture,
        /// A folder to write into.
        folder,
    };

    /// The chosen paths, empty after cancellation, or an error.
    using Choice = std::variant<QList<std::filesystem::path>, FileError>;
    using Completion = std::function<void(const Choice &)>;

    virtual ~FileChooser() = default;

    /// Shows the chooser. Calls `completion` once, later, on the interface thread. Destroying the returned
    /// ScheduledCall closes the chooser.
    [[nodiscard]] virtual ScheduledCall choose(Target target, Completion completion) = 0;
};
