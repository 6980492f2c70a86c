#pragma once

#include <QByteArray>

#include <filesystem>

/// Reads one file after the other into the same memory.
class CalendarFile
{
public:
    /// The bytes of a file, until the next one is read. None of what cannot be read, is not a plain file, for
    /// reading others may never end, or is larger than 16 megabytes.
    QByteArrayView read(const std::filesystem::path &path);

private:
    QByteArray m_bytes;
};
