#include "Platform/LocalPictureFiles.h"

#include "Platform/FileDescriptor.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr qint64 longestPicture = qint64(1) << 30;
constexpr qsizetype step = 1 << 20;

/// Returns whether the request was cancelled.
using IsCancelled = std::function<bool()>;

std::optional<QByteArray> readAll(int descriptor, qint64 expectedSize, const IsCancelled &isCancelled)
{
    QByteArray bytes;
    bytes.reserve(expectedSize + 1);
    for (qsizetype size = 0; size <= longestPicture && !isCancelled();) {
        bytes.resize(size + std::clamp<qsizetype>(expectedSize + 1 - size, 1, step));
        const ssize_t count = ::read(descriptor, bytes.data() + size, std::size_t(bytes.size() - size));
        if (count < 0 && errno != EINTR)
            return std::nullopt;
        if (count == 0) {
            bytes.truncate(size);
            bytes.squeeze();
            return bytes;
        }
        size += std::max<ssize_t>(count, 0);
    }
    return std::nullopt;
}

std::optional<QByteArray> readFile(const std::filesystem::path &path, const IsCancelled &isCancelled)
{
    std::error_code unreachable;
    if (!std::filesystem::is_regular_file(path, unreachable)) // opening a device can have side effects
        return std::nullopt;
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        return std::nullopt;
    if (!S_ISREG(status.st_mode) || status.st_size > longestPicture)
        return std::nullopt;
    try {
        return readAll(file.number(), status.st_size, isCancelled);
    } catch (const std::bad_alloc &) {
        return std::nullopt;
    }
}
} // namespace

LocalPictureFiles::LocalPictureFiles()
{
    m_reader.setMaxThreadCount(1);
}

ScheduledCall LocalPictureFiles::read(const std::filesystem::path &file, Completion completion)
{
    const auto request = std::make_shared<Completion>(std::move(completion));
    m_reader.start([waiting = std::weak_ptr(request), file] {
        const auto bytes = readFile(file, [&waiting] { return waiting.expired(); });
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [waiting, bytes] {
                if (const auto hand = waiting.lock())
                    (*hand)(bytes);
            },
            Qt::QueuedConnection);
    });
    return ScheduledCall(request);
}
