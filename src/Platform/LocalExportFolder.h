#pragma once

#include "Services/ExportFolder.h"

#include <QThreadPool>

/// Folders of this machine, written to on a thread of their own. When the program ends, a running
/// export is cancelled and leaves no files.
class LocalExportFolder : public ExportFolder
{
public:
    LocalExportFolder();

    ScheduledCall write(const std::filesystem::path &folder, Producer produce, Existing existing,
                        Completion completion) override;

private:
    QThreadPool m_writer;
};
