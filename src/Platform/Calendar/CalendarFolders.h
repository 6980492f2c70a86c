#pragma once

#include "Platform/Calendar/FetchDeadline.h"
#include "Services/CalendarStore.h"

#include <QSet>

#include <filesystem>
#include <vector>

/// The user's home, configuration and data folders.
struct UserFolders {
    std::filesystem::path home = {};
    std::filesystem::path configuration = {};
    std::filesystem::path data = {};

    static UserFolders ofThisUser();
};

/// Calendars that are stored as folders with one file per event (vdir), as terminal programs and
/// synchronisers do.
namespace CalendarFolders
{

/// Returns the existing calendar folders without duplicates: those of khal's configuration and the default
/// ones.
std::vector<std::filesystem::path> folders(const UserFolders &user);

/// Returns the events in these folders, up to three levels deep, or std::nullopt if there are no such
/// folders. Skips files that cannot be read, are not regular or are larger than 16 MB, and events with the
/// UIDs in `except`.
CalendarStore::Answer events(const UserFolders &user, const CalendarWindow &window,
                             const FetchDeadline &limit, const QSet<QByteArray> &except = {});

} // namespace CalendarFolders
