#include "Platform/FileDescriptor.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

FileDescriptor::~FileDescriptor()
{
    if (isOpen())
        ::close(m_number);
}

std::optional<FileError> FileDescriptor::write(QByteArrayView bytes) const
{
    while (!bytes.isEmpty()) {
        const ssize_t count = ::write(m_number, bytes.data(), std::size_t(bytes.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return lastSystemError();
        bytes = bytes.sliced(count);
    }
    return std::nullopt;
}

std::optional<FileError> FileDescriptor::close()
{
    return ::close(std::exchange(m_number, -1)) == 0 ? std::nullopt : std::optional(lastSystemError());
}

FileError lastSystemError()
{
    return systemError(errno);
}

FileError systemError(int code)
{
    return FileError(QString::fromLocal8Bit(std::system_category().message(code).c_str()));
}
