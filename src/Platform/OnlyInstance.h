#pragma once

#include "Platform/FileDescriptor.h"
#include "Shell/CommandLine.h"

/// Sees to it that one process at a time has the data of a folder open: it holds a lock beside them. Where
/// the folder cannot hold a lock (it is read-only, or the disk is full) the program goes without one.
class OnlyInstance
{
public:
    explicit OnlyInstance(std::filesystem::path dataFolder);

    /// Waits until this process is the one, or until the one there is has answered `arguments` in its stead.
    /// That takes no time unless another is just starting or ending.
    std::optional<CommandLineAnswer> yieldTo(const QStringList &arguments);

    bool isLocked() const { return m_lock.isOpen(); }

private:
    enum class Attempt { locked, taken, impossible };

    Attempt tryToLock();

    std::filesystem::path m_folder;
    FileDescriptor m_lock;
};
