#pragma once

#include "Platform/FileDescriptor.h"
#include "Shell/CommandLine.h"

/// Sees to it that one process at a time has the data of a folder open: it holds a lock beside them. Where
/// the folder cannot hold a lock (it is read-only, another user's, or on a server that keeps no locks) the
/// program goes without one, and can say so.
class SingleInstance
{
public:
    explicit SingleInstance(std::filesystem::path dataFolder);

    /// Waits until this process is the one, or until the one there is has answered `arguments` in its stead.
    /// That takes no time unless another is just starting or ending.
    std::optional<CommandLineResult> lockOrForward(const QStringList &arguments);

    bool isLocked() const { return m_lock.isOpen(); }

    /// Whether the folder at the path is still the one that this process has locked, and not missing or
    /// another one in its place. True where there could be no lock to begin with.
    bool holdsFolder() const;

    /// Locks the folder that lies at the path now, and makes it where it is missing. An error when another
    /// process has it.
    [[nodiscard]] std::optional<FileError> relock();

    /// A line for the user when this process is the one without a lock to show for it.
    std::optional<QString> warning() const;

private:
    enum class Attempt { locked, taken, impossible };

    Attempt tryToLock();
    std::filesystem::path lockFile() const { return m_folder / "instance.lock"; }

    std::filesystem::path m_folder;
    FileDescriptor m_lock;
    int m_error = 0; ///< why there is no lock
};
