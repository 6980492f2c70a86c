#pragma once

#include <QByteArray>

#include <filesystem>

/// Reads files, reusing one buffer.
class CalendarFile
{
public:
    /// Returns the bytes of a file, valid until the next call. Empty if the file cannot be read, is not a
    /// regular file or is larger than 16 MB.
    QByteArrayView read(const std::filesystem::path &path);

private:
    QByteArray m_bytes;
};
