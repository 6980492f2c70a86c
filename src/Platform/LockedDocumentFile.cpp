#include "Platform/LockedDocumentFile.h"

#include "Platform/SingleInstance.h"

LockedDocumentFile::LockedDocumentFile(DocumentFile &file, SingleInstance &instance)
    : m_file(file)
    , m_instance(instance)
{
}

std::optional<FileError> LockedDocumentFile::followFolder()
{
    if (m_instance.holdsFolder())
        return std::nullopt;
    if (auto error = m_instance.relock())
        return error;
    m_folderChanged();
    return std::nullopt;
}

DocumentFile::Contents LockedDocumentFile::read()
{
    return m_file.read();
}

std::optional<FileError> LockedDocumentFile::replace(const Producer &produce)
{
    if (auto error = followFolder())
        return error;
    return m_file.replace(produce);
}

std::optional<FileError> LockedDocumentFile::confirm()
{
    auto error = m_file.confirm();
    if (!m_instance.holdsFolder())
        return FileError(FileError::Problem::folderRemoved);
    return error;
}

bool LockedDocumentFile::canReplace() const
{
    return m_file.canReplace();
}
