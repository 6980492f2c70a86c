#include "Platform/AtomicFile.h"

#include <QtGlobal>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr qint64 writeBackStep = 1024 * 1024;
constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR; // as mkostemp sets it
constexpr std::string_view uniquePart = "XXXXXX";

/// Resolves symbolic links, also to a file that does not exist yet.
fs::path behindLinks(fs::path path)
{
    constexpr int mostLinks = 40; // the kernel's own limit
    std::error_code ignored;
    for (int step = 0; step < mostLinks && fs::is_symlink(fs::symlink_status(path, ignored)); ++step)
        path = path.parent_path() / fs::read_symlink(path, ignored);
    return path;
}

std::string temporaryPrefix(const fs::path &target)
{
    return std::string(".").append(target.filename().string()).append(".saving-");
}

bool flushToDisk(int descriptor)
{
#ifdef Q_OS_DARWIN
    return ::fcntl(descriptor, F_FULLFSYNC) == 0;
#else
    return ::fdatasync(descriptor) == 0;
#endif
}

/// A rename survives a power cut only after the folder is synchronised as well.
std::optional<FileError> flushFolder(const fs::path &folder)
{
    const FileDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.isOpen())
        return lastSystemError();
    const bool flushed = ::fsync(descriptor.number()) == 0;
    // Some network file systems cannot flush a folder, and need not.
    return flushed || errno == EINVAL ? std::nullopt : std::optional(lastSystemError());
}
} // namespace

AtomicFile::~AtomicFile()
{
    if (!m_temporary.empty())
        ::unlink(m_temporary.c_str());
}

std::optional<FileError> AtomicFile::open(const fs::path &path)
{
    m_target = behindLinks(path);
    struct stat existing = {};
    const bool exists = ::stat(m_target.c_str(), &existing) == 0;
    if (!exists && errno != ENOENT)
        return lastSystemError();
    if (exists && !S_ISREG(existing.st_mode))
        return systemError(S_ISDIR(existing.st_mode) ? EISDIR : EINVAL);
    // Renaming needs write permission for the folder only, but a file that is marked read-only must stay.
    if (exists && ::faccessat(AT_FDCWD, m_target.c_str(), W_OK, AT_EACCESS) != 0)
        return lastSystemError();

    std::string name = m_target.parent_path() / temporaryPrefix(m_target).append(uniquePart);
    m_descriptor = FileDescriptor(::mkostemp(name.data(), O_CLOEXEC)); // for the owner only
    if (!m_descriptor.isOpen())
        return lastSystemError();
    m_temporary = name;
    ::flock(m_descriptor.number(), LOCK_EX | LOCK_NB); // tells removeAbandoned() that the file is in use
    const mode_t mode = exists ? existing.st_mode & 07777 : ownerOnly;
    if (mode != ownerOnly && ::fchmod(m_descriptor.number(), mode) != 0)
        return lastSystemError();
    return std::nullopt;
}

std::optional<FileError> AtomicFile::write(QByteArrayView bytes)
{
    if (auto error = m_descriptor.write(bytes))
        return error;
    m_written += bytes.size();
    startWriteBack();
    return std::nullopt;
}

std::optional<FileError> AtomicFile::commit()
{
    if (!flushToDisk(m_descriptor.number()))
        return lastSystemError();
    m_replaced = FileDescriptor(::open(m_target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (::rename(m_temporary.c_str(), m_target.c_str()) != 0)
        return lastSystemError();
    m_temporary.clear();
    return std::nullopt;
}

std::optional<FileError> AtomicFile::settle()
{
    auto error = flushFolder(m_target.parent_path());
    m_descriptor = FileDescriptor();
    m_replaced = FileDescriptor();
    return error;
}

void AtomicFile::removeAbandoned(const fs::path &path)
{
    const fs::path target = behindLinks(path);
    const std::string prefix = temporaryPrefix(target);
    std::error_code error;
    for (fs::directory_iterator entry(target.parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename();
        if (!name.starts_with(prefix) || name.size() != prefix.size() + uniquePart.size())
            continue;
        const FileDescriptor file(
            ::open(entry->path().c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
        if (file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0)
            ::unlink(entry->path().c_str());
    }
}

/// Starts asynchronous write-back, which shortens the final fdatasync of a large file.
void AtomicFile::startWriteBack()
{
#ifdef Q_OS_LINUX
    if (m_written - m_writtenBack < writeBackStep)
        return;
    ::sync_file_range(m_descriptor.number(), m_writtenBack, m_written - m_writtenBack, SYNC_FILE_RANGE_WRITE);
    m_writtenBack = m_written;
#endif
}
