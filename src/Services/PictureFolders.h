#pragma once

#include "Services/DocumentFile.h"
#include "Services/Scheduler.h"

#include <QList>

#include <filesystem>

/// The user's folders, as far as there are pictures in them.
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

    /// Where users keep things: the home folder first.
    virtual QList<std::filesystem::path> places() const = 0;

    /// The folders and the picture files in a folder, folders first and each by name; hidden ones are left
    /// out. Tells on the interface thread, unless what is returned has been dropped by then.
    [[nodiscard]] virtual ScheduledCall list(const std::filesystem::path &folder, Completion completion) = 0;

    /// The last part of a path for the user to read. Names are bytes; those that are no text are shown as
    /// well as can be.
    static QString nameOf(const std::filesystem::path &path)
    {
        return QString::fromLocal8Bit((path.has_filename() ? path.filename() : path).c_str());
    }
};
