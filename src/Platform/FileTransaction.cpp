#include "Platform/FileTransaction.h"

#include "Platform/FileDescriptor.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <ranges>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
bool isTaken(const fs::path &path)
{
    std::error_code unreachable;
    return fs::exists(fs::symlink_status(path, unreachable));
}

bool renameToFreePlace(const fs::path &file, const fs::path &target)
{
    if (::renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // Some network file systems cannot rename without replacing, so check first.
    if (!isTaken(target))
        return ::rename(file.c_str(), target.c_str()) == 0;
    errno = EEXIST;
    return false;
}
} // namespace

FileTransaction::~FileTransaction()
{
    for (const Step &step : m_steps | std::views::reverse)
        undo(step);
}

std::optional<FileError> FileTransaction::makeFolder(const fs::path &folder)
{
    std::error_code unreachable;
    if (fs::is_directory(folder, unreachable))
        return std::nullopt;
    if (!folder.has_filename() && folder.has_relative_path()) // it ends with a slash
        return makeFolder(folder.parent_path());
    if (folder.has_parent_path()) {
        if (auto error = makeFolder(folder.parent_path()))
            return error;
    }
    if (::mkdir(folder.c_str(), S_IRWXU | S_IRWXG | S_IRWXO) != 0)
        return errno == EEXIST ? systemError(ENOTDIR) : lastSystemError(); // a file has that name
    m_steps.push_back({Step::Kind::madeFolder, folder});
    return std::nullopt;
}

std::optional<FileError> FileTransaction::moveIn(const fs::path &file, const fs::path &target)
{
    if (!renameToFreePlace(file, target))
        return lastSystemError();
    m_steps.push_back({Step::Kind::movedIn, target});
    return std::nullopt;
}

std::optional<FileError> FileTransaction::moveAside(const fs::path &target, const fs::path &aside)
{
    std::error_code unreachable;
    const fs::file_status status = fs::symlink_status(target, unreachable);
    if (!fs::exists(status))
        return std::nullopt;
    if (fs::is_directory(status))
        return systemError(EISDIR);
    if (::rename(target.c_str(), aside.c_str()) != 0)
        return lastSystemError();
    m_steps.push_back({Step::Kind::movedAside, target, aside});
    return std::nullopt;
}

void FileTransaction::undo(const Step &step)
{
    switch (step.kind) {
    case Step::Kind::madeFolder:
        ::rmdir(step.target.c_str());
        break;
    case Step::Kind::movedIn:
        ::unlink(step.target.c_str());
        break;
    case Step::Kind::movedAside:
        ::rename(step.aside.c_str(), step.target.c_str());
        break;
    }
}
