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
    /// Gives the file's name to the new version, whose bytes have reached the disk.
    [[nodiscard]] std::optional<FileError> commit();
    /// Makes the name outlive a power cut, and frees the room of the version that had it. After `commit`, and
    /// on any thread: either can take as long as the writing did.
    [[nodiscard]] std::optional<FileError> settle();

    /// Removes what versions of `path` a killed process left behind, but none that is being written.
    static void removeAbandoned(const std::filesystem::path &path);

private:
    void startWriteBack();

    std::filesystem::path m_target;
    std::filesystem::path m_temporary; // empty when there is none to remove
    FileDescriptor m_descriptor;
    FileDescriptor m_replaced; // a file's room is freed when nobody holds it any longer
    qint64 m_written = 0;
    qint64 m_writtenBack = 0;
};
