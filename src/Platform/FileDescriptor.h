#pragma once

#include "Services/DocumentFile.h"

#include <filesystem>
#include <utility>

/// An open file of the operating system, closed with its owner; or none, where opening failed.
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

    /// Writes all of it.
    [[nodiscard]] std::optional<FileError> write(QByteArrayView bytes) const;
    /// Some file systems tell only now that what was written has found no room.
    [[nodiscard]] std::optional<FileError> close();

private:
    int m_number = -1;
};

/// What the last system call that failed has to say, in the user's language.
FileError lastSystemError();
/// The same for an error number.
FileError systemError(int code);
