#pragma once

#include "Models/ExportedFile.h"
#include "Services/DocumentFile.h"
#include "Services/Scheduler.h"

#include <QList>
#include <QStringList>

#include <filesystem>

/// Puts the files of an export into a folder of the user's: all of them or none.
class ExportFolder
{
public:
    /// What becomes of files that are there already.
    enum class Existing { keep, replace };

    struct Success {
    };

    /// These paths are there already and were to be kept, so nothing has been written.
    struct Conflicts {
        QStringList paths;
    };

    /// After `Conflicts` or an error the folder is what it was before.
    using Outcome = std::variant<Success, Conflicts, FileError>;
    using Completion = std::function<void(const Outcome &)>;
    /// Makes the files; called on another thread.
    using Producer = std::function<QList<ExportedFile>()>;

    virtual ~ExportFolder() = default;

    /// Makes the folder where there is none. Tells on the interface thread. Dropping what is returned gives
    /// the export up.
    [[nodiscard]] virtual ScheduledCall write(const std::filesystem::path &folder, Producer produce,
                                              Existing existing, Completion completion) = 0;
};
