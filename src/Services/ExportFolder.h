#pragma once

#include "Models/ExportedFile.h"
#include "Services/DocumentFile.h"
#include "Services/Scheduler.h"

#include <QList>
#include <QStringList>

#include <filesystem>

/// Writes the files of an export into a folder: all of them or none.
class ExportFolder
{
public:
    /// Whether to replace files that already exist.
    enum class Existing { keep, replace };

    struct Success {
    };

    /// These paths already exist and `Existing::keep` was requested, so nothing was written.
    struct Conflicts {
        QStringList paths;
    };

    /// After `Conflicts` or an error the folder is unchanged.
    using Outcome = std::variant<Success, Conflicts, FileError>;
    using Completion = std::function<void(const Outcome &)>;
    /// Returns the files; called on a worker thread.
    using Producer = std::function<QList<ExportedFile>()>;

    virtual ~ExportFolder() = default;

    /// Creates the folder if it is missing. Calls `completion` on the interface thread. Destroying the
    /// returned ScheduledCall cancels the export.
    [[nodiscard]] virtual ScheduledCall write(const std::filesystem::path &folder, Producer produce,
                                              Existing existing, Completion completion) = 0;
};
