#pragma once

#include "Platform/FileDescriptor.h"
#include "Shell/CommandLine.h"

#include <QCoreApplication>

/// Ensures by a lock file that one process at a time has a data folder open. If the folder cannot be locked
/// (it is read-only, another user's, or on a server without locks), the program runs without a lock and can
/// warn.
class SingleInstance
{
    Q_DECLARE_TR_FUNCTIONS(SingleInstance)

public:
    explicit SingleInstance(std::filesystem::path dataFolder);

    /// Locks the folder and returns std::nullopt, or sends `arguments` to the process that holds the lock and
    /// returns its reply. Waits only while another process is starting or ending.
    std::optional<CommandLineResult> lockOrForward(const QStringList &arguments);

    /// Returns the message that the running program was asked and does not answer.
    static CommandLineResult unanswered();

    bool isLocked() const { return m_lock.isOpen(); }

    /// Returns whether the folder at the path is still the locked one, not missing or replaced. True if the
    /// folder could not be locked at the start.
    bool holdsFolder() const;

    /// Locks the folder that is at the path now and creates it if it is missing. An error if another process
    /// has locked it.
    [[nodiscard]] std::optional<FileError> relock();

    /// Returns a warning for the user if this process runs without a lock.
    std::optional<QString> warning() const;

private:
    enum class Attempt { locked, taken, impossible };

    Attempt tryToLock();
    std::filesystem::path lockFile() const { return m_folder / "instance.lock"; }

    std::filesystem::path m_folder;
    FileDescriptor m_lock;
    int m_error = 0; ///< errno of the failed lock
};
