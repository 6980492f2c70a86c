#include "Platform/Calendar/CalendarFolders.h"

#include "Calendar/CalendarContents.h"
#include "Platform/Calendar/CalendarFile.h"
#include "Platform/Calendar/KhalConfiguration.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <glob.h>
#include <set>

namespace fs = std::filesystem;

namespace
{
constexpr int deepestFolder = 3;

fs::path location(QStandardPaths::StandardLocation location)
{
    return QFile::encodeName(QStandardPaths::writableLocation(location)).toStdString();
}

std::vector<fs::path> lookedUp(const fs::path &pattern)
{
    glob_t found = {};
    std::vector<fs::path> paths;
    if (::glob(pattern.c_str(), 0, nullptr, &found) == 0)
        paths.assign(found.gl_pathv, found.gl_pathv + found.gl_pathc);
    ::globfree(&found);
    return paths;
}

/// The calendar files and subfolders of a folder, sorted by name.
struct Listing {
    std::vector<fs::path> calendarFiles;
    std::vector<fs::path> folders;
};

Listing listing(const fs::path &folder)
{
    Listing result;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        const std::string name = entry->path().filename();
        std::error_code unreachable;
        if (name.starts_with('.')) // temporary files, and files of the program that synchronises
            continue;
        if (name.ends_with(".ics"))
            result.calendarFiles.push_back(entry->path());
        else if (entry->is_directory(unreachable))
            result.folders.push_back(entry->path());
    }
    std::ranges::sort(result.calendarFiles, {}, &fs::path::native);
    std::ranges::sort(result.folders, {}, &fs::path::native);
    return result;
}

/// Reads folders one after the other. A folder that is reached twice through links is read once.
class FolderReader
{
public:
    FolderReader(const CalendarWindow &window, const FetchDeadline &limit, const QSet<QByteArray> &except)
        : m_window(window)
        , m_limit(limit)
        , m_except(except)
    {
    }

    void read(const fs::path &folder, int depth)
    {
        std::error_code unreachable;
        if (m_limit.isOver() || !m_known.insert(fs::canonical(folder, unreachable)).second)
            return;
        const Listing found = listing(folder);
        readCalendar(found.calendarFiles);
        if (depth < deepestFolder) {
            for (const fs::path &below : found.folders)
                read(below, depth + 1);
        }
    }

    QList<CalendarEvent> events;

private:
    void readCalendar(const std::vector<fs::path> &files)
    {
        const auto isCancelled = [this] { return m_limit.isOver(); };
        CalendarContents calendar(m_window, m_except);
        for (const fs::path &file : files) {
            if (isCancelled())
                break;
            calendar.read(m_file.read(file));
        }
        events += calendar.events(isCancelled);
    }

    const CalendarWindow &m_window;
    const FetchDeadline &m_limit;
    const QSet<QByteArray> &m_except;
    CalendarFile m_file;
    std::set<fs::path> m_known;
};
} // namespace

UserFolders UserFolders::ofThisUser()
{
    return {.home = location(QStandardPaths::HomeLocation),
            .configuration = location(QStandardPaths::GenericConfigLocation),
            .data = location(QStandardPaths::GenericDataLocation)};
}

std::vector<fs::path> CalendarFolders::folders(const UserFolders &user)
{
    CalendarFile file;
    const QByteArrayView khal = file.read(user.configuration / "khal" / "config");
    std::vector<fs::path> candidates;
    for (const fs::path &pattern : khalCalendars(khal.toByteArray(), user.home))
        std::ranges::copy(lookedUp(pattern), std::back_inserter(candidates));
    candidates.push_back(user.home / ".calendars");
    candidates.push_back(user.data / "khal" / "calendars");

    std::vector<fs::path> folders;
    for (const fs::path &candidate : candidates) {
        std::error_code unreachable;
        const fs::path folder = fs::canonical(candidate, unreachable);
        if (fs::is_directory(folder, unreachable) && std::ranges::find(folders, folder) == folders.end())
            folders.push_back(folder);
    }
    return folders;
}

CalendarStore::Answer CalendarFolders::events(const UserFolders &user, const CalendarWindow &window,
                                              const FetchDeadline &limit, const QSet<QByteArray> &except)
{
    const std::vector<fs::path> found = folders(user);
    if (found.empty())
        return std::nullopt;
    FolderReader reader(window, limit, except);
    for (const fs::path &folder : found)
        reader.read(folder, 0);
    return reader.events;
}
