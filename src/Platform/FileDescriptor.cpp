#include "Platform/FileDescriptor.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

FileDescriptor::~FileDescriptor()
{
    if (isOpen())
        ::close(m_number);
}

FileError lastSystemError()
{
    return systemError(errno);
}

FileError systemError(int code)
{
    return {QString::fromLocal8Bit(std::system_category().message(code).c_str())};
}
