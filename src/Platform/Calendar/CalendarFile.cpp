#include "Platform/Calendar/CalendarFile.h"

#include "Platform/FileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr qint64 largestFile = qint64(16) << 20;
}

QByteArrayView CalendarFile::read(const std::filesystem::path &path)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size > largestFile)
        return {};
    if (m_bytes.size() < status.st_size)
        m_bytes.resize(status.st_size);
    qsizetype size = 0;
    while (size < status.st_size) {
        const ssize_t count =
            ::read(file.number(), m_bytes.data() + size, std::size_t(status.st_size - size));
        if (count == 0 || (count < 0 && errno != EINTR))
            break;
        size += std::max<ssize_t>(count, 0);
    }
    return QByteArrayView(m_bytes).first(size);
}
