#include "Platform/ExportWriter.h"

#include "Platform/FileTransaction.h"
#include "Platform/StagingFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace fs = std::filesystem;
using Error = std::optional<FileError>;

namespace
{
fs::path placeIn(const fs::path &folder, const ExportedFile &file)
{
    return folder / file.path.toUtf8().toStdString();
}

Error writeFile(const fs::path &path, const QByteArray &bytes)
{
    constexpr mode_t everybody = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, everybody));
    if (!file.isOpen())
        return lastSystemError();
    if (Error error = file.write(bytes))
        return error;
    return file.close();
}

/// Undoes an unfinished export in its destructor: first the files that were moved, then the staging folder,
/// then the folders that were made.
class Attempt
{
public:
    Attempt(fs::path folder, ExportFolder::Existing existing)
        : m_folder(std::move(folder))
        , m_existing(existing)
    {
    }

    Error prepare()
    {
        if (Error error = m_folders.makeFolder(m_folder))
            return error;
        return m_staging.create(m_folder);
    }

    Error stage(const QList<ExportedFile> &files, const ExportWriter::Progress &progress) const
    {
        for (qsizetype number = 0; number < files.size(); ++number) {
            if (!progress(number, files.size()))
                return systemError(ECANCELED);
            if (Error error = writeFile(staged(number), files.at(number).bytes))
                return error;
        }
        return m_staging.sync();
    }

    Error install(const QList<ExportedFile> &files)
    {
        for (qsizetype number = 0; number < files.size(); ++number) {
            if (Error error = install(number, placeIn(m_folder, files.at(number))))
                return error;
        }
        return m_staging.sync();
    }

    void keep()
    {
        m_installation.keep();
        m_folders.keep();
    }

private:
    Error install(qsizetype number, const fs::path &place)
    {
        if (Error error = m_folders.makeFolder(place.parent_path()))
            return error;
        if (m_existing == ExportFolder::Existing::replace) {
            if (Error error = m_installation.moveAside(place, staged(number) += ".replaced"))
                return error;
        }
        return m_installation.moveIn(staged(number), place);
    }

    fs::path staged(qsizetype number) const { return m_staging.path() / std::to_string(number); }

    const fs::path m_folder;
    const ExportFolder::Existing m_existing;
    // Members are destroyed in reverse order.
    FileTransaction m_folders;
    StagingFolder m_staging;
    FileTransaction m_installation;
};
} // namespace

ExportFolder::Outcome ExportWriter::write(const QList<ExportedFile> &files, const Progress &progress) const
{
    const QStringList paths = taken(files);
    if (m_existing == ExportFolder::Existing::keep && !paths.isEmpty())
        return ExportFolder::Conflicts{paths};
    Attempt attempt(m_folder, m_existing);
    Error error = attempt.prepare();
    if (!error)
        error = attempt.stage(files, progress);
    if (!error)
        error = attempt.install(files);
    if (error)
        return *error;
    attempt.keep();
    return ExportFolder::Success{};
}

QStringList ExportWriter::taken(const QList<ExportedFile> &files) const
{
    QStringList paths;
    for (const ExportedFile &file : files) {
        std::error_code unreachable;
        if (fs::exists(fs::symlink_status(placeIn(m_folder, file), unreachable)))
            paths << file.path;
    }
    return paths;
}
