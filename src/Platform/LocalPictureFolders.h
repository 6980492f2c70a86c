#pragma once

#include "Services/PictureFolders.h"

#include <QThreadPool>

/// Lists local folders on a worker thread, because a network mount may be slow.
class LocalPictureFolders : public PictureFolders
{
public:
    LocalPictureFolders();

    QList<std::filesystem::path> places() const override;
    ScheduledCall list(const std::filesystem::path &folder, Completion completion) override;

private:
    QThreadPool m_lister;
};
