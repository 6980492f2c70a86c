#pragma once

#include "Services/PictureFolders.h"

#include <QThreadPool>

/// Folders of this machine, looked at on a thread of their own: a disk may be slow and far away.
class LocalPictureFolders : public PictureFolders
{
public:
    LocalPictureFolders();

    QList<std::filesystem::path> places() const override;
    ScheduledCall list(const std::filesystem::path &folder, Completion completion) override;

private:
    QThreadPool m_lister;
};
