#pragma once

#include "Services/ExportFolder.h"

/// Writes an export: all files into a hidden staging folder, synchronises them, then renames them into place.
/// If a step fails, the user's folder is unchanged.
class ExportWriter
{
public:
    /// Called after each file. Returns false to cancel.
    using Progress = std::function<bool(qsizetype written, qsizetype all)>;

    ExportWriter(const std::filesystem::path &folder, ExportFolder::Existing existing)
        : m_folder(folder.lexically_normal())
        , m_existing(existing)
    {
    }

    /// Blocks; may be called on any thread. Cancellation is returned as an error.
    ExportFolder::Outcome write(const QList<ExportedFile> &files, const Progress &progress) const;

private:
    QStringList taken(const QList<ExportedFile> &files) const;

    std::filesystem::path m_folder;
    ExportFolder::Existing m_existing;
};
