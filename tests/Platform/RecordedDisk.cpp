#include "Platform/RecordedDisk.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
RecordedDisk *recording = nullptr;

/// Returns the file of a descriptor if it is the recorded folder or inside it.
std::optional<fs::path> recordedFile(int descriptor)
{
    if (!recording)
        return std::nullopt;
    std::error_code error;
    const fs::path path = fs::read_symlink("/proc/self/fd/" + std::to_string(descriptor), error);
    const bool isInside = path == recording->folder() || path.parent_path() == recording->folder();
    return !error && isInside ? std::optional(path) : std::nullopt;
}

void note(DiskEvent::Kind kind, const fs::path &file, const QByteArray &bytes = {})
{
    recording->add({.kind = kind, .file = file.filename().string(), .bytes = bytes});
}
} // namespace

// Wrappers of the C library's functions that record the calls.

extern "C" ssize_t write(int descriptor, const void *bytes, std::size_t size)
{
    const auto count = ssize_t(::syscall(SYS_write, descriptor, bytes, size));
    if (const auto file = count > 0 ? recordedFile(descriptor) : std::nullopt)
        note(DiskEvent::Kind::written, *file, QByteArray(static_cast<const char *>(bytes), count));
    return count;
}

extern "C" int fdatasync(int descriptor)
{
    const auto result = int(::syscall(SYS_fdatasync, descriptor));
    if (const auto file = recordedFile(descriptor))
        note(DiskEvent::Kind::fileSynchronised, *file);
    return result;
}

extern "C" int fsync(int descriptor)
{
    const auto result = int(::syscall(SYS_fsync, descriptor));
    if (recordedFile(descriptor))
        note(DiskEvent::Kind::folderSynchronised, {});
    return result;
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    const auto result = int(::syscall(SYS_rename, from, to));
    if (recording && fs::path(to).parent_path() == recording->folder())
        note(DiskEvent::Kind::renamed, from);
    return result;
}

RecordedDisk::RecordedDisk(const fs::path &folder) : m_folder(fs::canonical(folder))
{
    recording = this;
}

RecordedDisk::~RecordedDisk()
{
    recording = nullptr;
}

CrashedDisk::CrashedDisk(const QByteArray &contents)
    : m_files({{"first", {.bytes = contents, .safe = contents.size()}}})
    , m_candidates({"first"})
{
}

void CrashedDisk::apply(const DiskEvent &event)
{
    using Kind = DiskEvent::Kind;
    if (event.kind == Kind::written)
        m_files[event.file].bytes += event.bytes;
    else if (event.kind == Kind::fileSynchronised)
        m_files[event.file].safe = m_files[event.file].bytes.size();
    else if (event.kind == Kind::renamed)
        m_candidates.push_back(event.file);
    else if (event.kind == Kind::folderSynchronised)
        m_candidates.erase(m_candidates.begin(), m_candidates.end() - 1);
}

QByteArrayList CrashedDisk::survivors() const
{
    QByteArrayList survivors;
    for (const std::string &name : m_candidates) {
        const File &file = m_files.at(name);
        survivors.append(file.bytes);
        const qsizetype unsafe = file.bytes.size() - file.safe;
        if (unsafe == 0)
            continue;
        survivors.append(file.bytes.first(file.safe));
        survivors.append(file.bytes.first(file.safe + unsafe / 2));
        survivors.append(file.bytes.first(file.safe) + QByteArray(unsafe, '\0'));
    }
    return survivors;
}
