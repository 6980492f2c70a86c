#pragma once

#include "Services/PictureFiles.h"

#include <QThreadPool>

/// Reads local files on a worker thread. Rejects files that are not regular, because reading a pipe or a
/// device may block forever, and files larger than the data file can hold.
class LocalPictureFiles : public PictureFiles
{
public:
    LocalPictureFiles();

    ScheduledCall read(const std::filesystem::path &file, Completion completion) override;

private:
    QThreadPool m_reader;
};
