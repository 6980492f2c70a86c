#include "Platform/LocalDocumentFile.h"

#include "Platform/AtomicFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <memory>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr qint64 longestReadable = std::numeric_limits<quint32>::max(); // the parser's own limit
constexpr std::uintmax_t roomToSpare = 64 * 1024;                       // the documents may have grown
constexpr qsizetype parserPadding = 64; // bytes behind the text that the parser may read

DocumentFile::Contents readAll(int descriptor, qint64 expectedSize)
{
    QByteArray bytes;
    bytes.reserve(expectedSize + parserPadding);
    for (qsizetype size = 0; size <= longestReadable;) {
        bytes.resize(std::max(expectedSize, size + parserPadding));
        const ssize_t count = ::read(descriptor, bytes.data() + size, std::size_t(bytes.size() - size));
        if (count < 0 && errno != EINTR)
            return lastSystemError();
        if (count == 0) {
            bytes.truncate(size);
            return bytes;
        }
        size += std::max<ssize_t>(count, 0);
    }
    return systemError(EFBIG);
}

/// Non-blocking, because opening a FIFO would wait for a writer.
DocumentFile::Contents readFile(const fs::path &path)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen())
        return errno == ENOENT ? DocumentFile::Contents() : lastSystemError();
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0)
        return lastSystemError();
    if (!S_ISREG(status.st_mode))
        return systemError(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    if (status.st_size > longestReadable)
        return systemError(EFBIG);
    try {
        return readAll(file.number(), status.st_size);
    } catch (const std::bad_alloc &) {
        return systemError(ENOMEM);
    }
}

std::optional<FileError> createPrivateFolder(const fs::path &folder)
{
    std::error_code error;
    fs::create_directories(folder.parent_path(), error);
    if (error)
        return systemError(error.value());
    const bool exists = ::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST;
    return exists ? std::nullopt : std::optional(lastSystemError());
}

bool hasRoomFor(std::uintmax_t bytes, const fs::path &folder)
{
    std::error_code error;
    const fs::space_info space = fs::space(folder, error);
    return !error && space.available >= bytes + roomToSpare;
}
} // namespace

LocalDocumentFile::LocalDocumentFile(const DataLocation &location) : m_location(location) {}

DocumentFile::Contents LocalDocumentFile::read()
{
    const auto file = path();
    if (!file)
        return systemError(ENOENT);
    createPrivateFolder(file->parent_path()); // ignore errors here: the next save reports them
    AtomicFile::removeAbandoned(*file);
    return readFile(*file);
}

std::optional<FileError> LocalDocumentFile::replace(const Producer &produce)
{
    const auto target = path();
    if (!target)
        return systemError(ENOENT);
    if (auto error = createPrivateFolder(target->parent_path()))
        return error;
    auto file = std::make_shared<AtomicFile>();
    if (auto error = file->open(*target))
        return error;
    if (auto error = produce(*file))
        return error;
    if (auto error = file->commit())
        return error;
    // If no thread can be started, confirm() runs it. std::async is used because the thread sanitizer sees
    // its threads.
    m_settling = std::async(std::launch::async | std::launch::deferred,
                            [file = std::move(file)] { return file->settle(); });
    return std::nullopt;
}

std::optional<FileError> LocalDocumentFile::confirm()
{
    return m_settling.valid() ? m_settling.get() : std::nullopt;
}

bool LocalDocumentFile::canReplace() const
{
    const auto target = path();
    if (!target || createPrivateFolder(target->parent_path()))
        return false;
    const auto isWritable = [](const fs::path &path) {
        return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
    };
    std::error_code isMissing;
    const std::uintmax_t size = fs::file_size(*target, isMissing);
    return isWritable(target->parent_path()) && (isMissing || isWritable(*target)) &&
           hasRoomFor(isMissing ? 0 : size, target->parent_path());
}

std::optional<fs::path> LocalDocumentFile::path() const
{
    const auto support = m_location.applicationSupportDirectory();
    return support ? std::optional(*support / "Pelko" / "data.json") : std::nullopt;
}
