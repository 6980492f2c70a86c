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
        /// One to write into.
        folder,
    };

    /// What was chosen: nothing when the user thought better of it, or why nothing could be chosen.
    using Choice = std::variant<QList<std::filesystem::path>, FileError>;
    using Completion = std::function<void(const Choice &)>;

    virtual ~FileChooser() = default;

    /// Shows the chooser and tells once, later and on the interface thread, what came of it. Dropping what is
    /// returned closes the chooser.
    [[nodiscard]] virtual ScheduledCall choose(Target target, Completion completion) = 0;
};
