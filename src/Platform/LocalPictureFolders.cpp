#include "Platform/LocalPictureFolders.h"

#include "Platform/FileDescriptor.h"

#include <QCollator>
#include <QCoreApplication>
#include <QFile>
#include <QMimeDatabase>
#include <QStandardPaths>

#include <algorithm>

namespace fs = std::filesystem;

namespace
{

bool isPicture(const QMimeDatabase &types, const fs::path &file)
{
    const QString name = QString::fromLocal8Bit(file.filename().c_str());
    return types.mimeTypeForFile(name, QMimeDatabase::MatchExtension).name().startsWith(u"image/");
}

std::optional<PictureFolders::Entry> entryFor(const QMimeDatabase &types, const fs::directory_entry &found)
{
    std::error_code unreachable;
    if (found.path().filename().native().starts_with('.'))
        return std::nullopt;
    if (found.is_directory(unreachable))
        return PictureFolders::Entry{.path = found.path(), .isFolder = true};
    if (found.is_regular_file(unreachable) && isPicture(types, found.path()))
        return PictureFolders::Entry{.path = found.path(), .isFolder = false};
    return std::nullopt;
}

void sort(QList<PictureFolders::Entry> &entries)
{
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(entries, [&collator](const auto &one, const auto &other) {
        if (one.isFolder != other.isFolder)
            return one.isFolder;
        return collator.compare(one.name(), other.name()) < 0;
    });
}

PictureFolders::Listing look(const fs::path &folder)
{
    std::error_code error;
    if (fs::exists(folder, error) && !fs::is_directory(folder, error))
        return PictureFolders::File{};
    fs::directory_iterator found(folder, error);
    const QMimeDatabase types;
    QList<PictureFolders::Entry> entries;
    for (; !error && found != fs::directory_iterator(); found.increment(error)) {
        if (const auto entry = entryFor(types, *found))
            entries.append(*entry);
    }
    if (error)
        return systemError(error.value());
    sort(entries);
    return entries;
}

} // namespace

LocalPictureFolders::LocalPictureFolders()
{
    m_lister.setMaxThreadCount(1);
}

QList<fs::path> LocalPictureFolders::places() const
{
    QList<fs::path> places;
    for (const auto location : {QStandardPaths::HomeLocation, QStandardPaths::PicturesLocation,
                                QStandardPaths::DownloadLocation, QStandardPaths::DesktopLocation}) {
        const fs::path place = QFile::encodeName(QStandardPaths::writableLocation(location)).toStdString();
        std::error_code unreachable;
        if (fs::is_directory(place, unreachable) && !places.contains(place))
            places << place;
    }
    return places;
}

ScheduledCall LocalPictureFolders::list(const fs::path &folder, Completion completion)
{
    const auto request = std::make_shared<Completion>(std::move(completion));
    m_lister.start([waiting = std::weak_ptr(request), folder] {
        if (waiting.expired())
            return;
        const Listing listing = look(folder);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [waiting, listing] {
                if (const auto tell = waiting.lock())
                    (*tell)(listing);
            },
            Qt::QueuedConnection);
    });
    return ScheduledCall(request);
}
