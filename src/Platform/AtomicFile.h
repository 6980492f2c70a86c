#pragma once

#include "Platform/FileDescriptor.h"

/// The next version of a file, written beside it under a name of its own. Until `commit` the file is
/// untouched; a version that is not committed is removed.
///
/// A symbolic link is followed and stays. The file keeps its mode; a new one is for its owner only. Qt's
/// QSaveFile is not used because its 6.4 ignores a failing flush and then installs a truncated file.
class AtomicFile : public ByteSink
{
public:
    AtomicFile() = default;
    ~AtomicFile() override;
    Q_DISABLE_COPY_MOVE(AtomicFile)

    [[nodiscard]] std::optional<FileError> open(const std::filesystem::path &path);
    [[nodiscard]] std::optional<FileError> write(QByteArrayView bytes) override;
    /// Synchronises the new version and renames it over the target.
    [[nodiscard]] std::optional<FileError> commit();
    /// Synchronises the directory and frees the replaced version. Call it after `commit`, on any thread; it
    /// can take as long as writing.
    [[nodiscard]] std::optional<FileError> settle();

    /// Removes temporary files of `path` that a killed process left behind. Files in use are locked and stay.
    static void removeAbandoned(const std::filesystem::path &path);

private:
    void startWriteBack();

    std::filesystem::path m_target;
    std::filesystem::path m_temporary; // empty when there is none to remove
    FileDescriptor m_descriptor;
    FileDescriptor m_replaced; // the last open descriptor: closing it frees the blocks
    qint64 m_written = 0;
    qint64 m_writtenBack = 0;
};
