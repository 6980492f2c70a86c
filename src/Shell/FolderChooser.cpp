#include "Shell/FolderChooser.h"

#include "Store/ChangeScope.h"

#include <QPointer>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace
{

fs::path pathFrom(const QString &text)
{
    return text.toLocal8Bit().toStdString();
}

} // namespace

FolderChooser::FolderChooser(PictureFolders &folders)
    : m_folders(folders)
    , m_places(folders.places())
    , m_folder(m_places.value(0, "/"))
{
}

ScheduledCall FolderChooser::choose(Target target, Completion completion)
{
    const auto closes = [chooser = QPointer(this)](const Completion *done) {
        delete done;
        // A new request may exist before the old one is destroyed.
        if (chooser && chooser->m_request.expired())
            chooser->close();
    };
    const std::shared_ptr<Completion> request(new Completion(std::move(completion)), closes);
    m_request = request;
    ChangeScope changes(*this);
    changes.assign(m_target, target, &FolderChooser::wantsFolderChanged);
    changes.assign(m_isOpen, true, &FolderChooser::isOpenChanged);
    list(m_folder);
    return ScheduledCall(request);
}

QString FolderChooser::folder() const
{
    return QString::fromLocal8Bit(m_folder.c_str());
}

QStringList FolderChooser::places() const
{
    QStringList names;
    for (const fs::path &place : m_places)
        names << PictureFolders::nameOf(place);
    return names;
}

int FolderChooser::place() const
{
    return static_cast<int>(m_places.indexOf(m_folder));
}

void FolderChooser::take(int row)
{
    if (row < 0 || row >= m_entries.rowCount())
        return;
    const PictureFolders::Entry entry = m_entries.entries().at(row);
    if (entry.isFolder)
        list(entry.path);
    else
        finish(QList{entry.path});
}

void FolderChooser::takeFolder()
{
    finish(QList{m_folder});
}

void FolderChooser::goUp()
{
    if (canGoUp())
        list(m_folder.parent_path(), m_folder);
}

void FolderChooser::goToPlace(int place)
{
    if (place >= 0 && place < m_places.size())
        list(m_places.at(place));
}

void FolderChooser::goTo(const QString &path)
{
    const QString typed = path.trimmed();
    const bool isInHome = typed == u'~' || typed.startsWith(u"~/");
    const fs::path target = isInHome ? m_places.value(0, "/") / pathFrom(typed.sliced(qMin(2, typed.size())))
                                     : m_folder / pathFrom(typed);
    const fs::path plain = target.lexically_normal();
    list(plain.has_filename() || !plain.has_relative_path() ? plain : plain.parent_path());
}

int FolderChooser::rowStartingWith(const QString &text, int from) const
{
    return m_entries.rowStartingWith(text, from);
}

void FolderChooser::cancel()
{
    finish(QList<fs::path>{});
}

void FolderChooser::list(const fs::path &folder, const fs::path &cameFrom)
{
    setIsListing(true);
    m_listing = m_folders.list(folder, [this, folder, cameFrom](const PictureFolders::Listing &listing) {
        setIsListing(false);
        if (const auto *entries = std::get_if<QList<PictureFolders::Entry>>(&listing))
            show(*entries, folder, cameFrom);
        else if (const auto *error = std::get_if<FileError>(&listing))
            setProblem(*error);
        else if (wantsFolder())
            setProblem(FileError(FileError::Problem::notAFolder));
        else
            finish(QList{folder});
    });
}

void FolderChooser::show(QList<PictureFolders::Entry> entries, const fs::path &folder,
                         const fs::path &cameFrom)
{
    setProblem({});
    if (wantsFolder())
        entries.removeIf([](const PictureFolders::Entry &entry) { return !entry.isFolder; });
    m_entries.setEntries(std::move(entries));
    ChangeScope(*this).assign(m_folder, folder, &FolderChooser::folderChanged);
    Q_EMIT listed(std::max(0, m_entries.rowOf(cameFrom)));
}

void FolderChooser::finish(const Choice &choice)
{
    const auto request = m_request.lock();
    close();
    if (request)
        (*request)(choice);
}

void FolderChooser::close()
{
    m_request.reset();
    m_listing.cancel();
    setIsListing(false);
    setProblem({});
    ChangeScope(*this).assign(m_isOpen, false, &FolderChooser::isOpenChanged);
}

void FolderChooser::setIsListing(bool listing)
{
    ChangeScope(*this).assign(m_isListing, listing, &FolderChooser::isListingChanged);
}

void FolderChooser::setProblem(const FileError &problem)
{
    ChangeScope(*this).assign(m_problem, problem, &FolderChooser::problemChanged);
}
