#pragma once

#include "Platform/FileDescriptor.h"

/// The next version of a file, written beside it under a name of its own. Until `commit` the file is
/// untouched; a version that is not committed is removed. `commit` returns only when the new bytes have
/// reached the disk.
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
    [[nodiscard]] std::optional<FileError> commit();

    /// Removes what versions of `path` a killed process left behind, but none that is being written.
    static void removeAbandoned(const std::filesystem::path &path);

private:
    void startWriteBack();

    std::filesystem::path m_target;
    std::filesystem::path m_temporary; // empty when there is none to remove
    FileDescriptor m_descriptor;
    qint64 m_written = 0;
    qint64 m_writtenBack = 0;
};
