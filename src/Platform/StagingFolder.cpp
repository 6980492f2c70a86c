#include "Platform/StagingFolder.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr std::string_view prefix = ".pelko-export-";
} // namespace

StagingFolder::~StagingFolder()
{
    std::error_code ignored;
    if (!m_path.empty())
        fs::remove_all(m_path, ignored);
}

std::optional<FileError> StagingFolder::create(const fs::path &folder)
{
    removeAbandoned(folder);
    std::string path = folder / std::string(prefix).append("XXXXXX");
    if (!::mkdtemp(path.data()))
        return lastSystemError();
    m_path = path;
    m_descriptor = FileDescriptor(::open(m_path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!m_descriptor.isOpen())
        return lastSystemError();
    ::flock(m_descriptor.number(), LOCK_EX | LOCK_NB);
    return std::nullopt;
}

std::optional<FileError> StagingFolder::sync() const
{
    return ::syncfs(m_descriptor.number()) == 0 ? std::nullopt : std::optional(lastSystemError());
}

void StagingFolder::removeAbandoned(const fs::path &folder)
{
    std::error_code error;
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (!entry->path().filename().native().starts_with(prefix))
            continue;
        const FileDescriptor found(
            ::open(entry->path().c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (found.isOpen() && ::flock(found.number(), LOCK_EX | LOCK_NB) == 0)
            fs::remove_all(entry->path(), ignored);
    }
}
