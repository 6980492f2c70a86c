#pragma once

#include "Services/DocumentFile.h"
#include "Services/Scheduler.h"

#include <QList>

#include <filesystem>

/// Lists folders and the pictures in them.
class PictureFolders
{
public:
    struct Entry {
        std::filesystem::path path;
        bool isFolder = false;

        QString name() const { return nameOf(path); }

        bool operator==(const Entry &) const = default;
    };

    /// The path is not a folder but a file.
    struct File {
    };

    using Listing = std::variant<QList<Entry>, File, FileError>;
    using Completion = std::function<void(const Listing &)>;

    virtual ~PictureFolders() = default;

    /// The standard folders of the user, the home folder first.
    virtual QList<std::filesystem::path> places() const = 0;

    /// The folders and the picture files in a folder, folders first and each by name; hidden ones are left
    /// out. Calls `completion` on the interface thread,
    /// unless the returned ScheduledCall is destroyed first.
    [[nodiscard]] virtual ScheduledCall list(const std::filesystem::path &folder, Completion completion) = 0;

    /// Returns the last component of a path for display. Bytes that are not valid text are replaced.
    static QString nameOf(const std::filesystem::path &path)
    {
        return QString::fromLocal8Bit((path.has_filename() ? path.filename() : path).c_str());
    }
};
