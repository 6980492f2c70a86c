#pragma once

#include "Services/DocumentFile.h"

#include <filesystem>
#include <utility>

/// Owns a POSIX file descriptor, or none if opening failed.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : m_number(number) {}
    FileDescriptor(FileDescriptor &&other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~FileDescriptor();

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

    /// Writes all bytes.
    [[nodiscard]] std::optional<FileError> write(QByteArrayView bytes) const;
    /// Closes the file. Some file systems report a full disk only here.
    [[nodiscard]] std::optional<FileError> close();

private:
    int m_number = -1;
};

/// Returns the localised message of errno.
FileError lastSystemError();
/// Returns the localised message of an error number.
FileError systemError(int code);
