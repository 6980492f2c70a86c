#pragma once

#include "Services/PictureFiles.h"

#include <QThreadPool>

/// Files of this machine, read on a thread of their own. Whatever is not a plain file is refused at once:
/// reading a pipe or a device may never end. So is what is larger than the data file can hold.
class LocalPictureFiles : public PictureFiles
{
public:
    LocalPictureFiles();

    ScheduledCall read(const std::filesystem::path &file, Completion completion) override;

private:
    QThreadPool m_reader;
};
