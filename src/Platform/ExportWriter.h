#pragma once

#include "Services/ExportFolder.h"

/// Writes an export: all files into a hidden folder beside their places, then onto the disk, and only then to
/// where they belong. Whatever fails in between, the user's folder is what it was before.
class ExportWriter
{
public:
    /// Told how many files of how many are written; says whether to go on.
    using Progress = std::function<bool(qsizetype written, qsizetype all)>;

    ExportWriter(const std::filesystem::path &folder, ExportFolder::Existing existing)
        : m_folder(folder.lexically_normal())
        , m_existing(existing)
    {
    }

    /// Takes its time; on any thread. Given up is an error too.
    ExportFolder::Outcome write(const QList<ExportedFile> &files, const Progress &progress) const;

private:
    QStringList taken(const QList<ExportedFile> &files) const;

    std::filesystem::path m_folder;
    ExportFolder::Existing m_existing;
};
