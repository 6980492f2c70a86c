#pragma once

#include "Platform/Calendar/FetchDeadline.h"
#include "Services/CalendarStore.h"

#include <QSet>

#include <filesystem>
#include <vector>

/// Where this user's programs keep what is theirs.
struct UserFolders {
    std::filesystem::path home = {};
    std::filesystem::path configuration = {};
    std::filesystem::path data = {};

    static UserFolders ofThisUser();
};

/// Calendars that are folders with a file for each event, as terminal programs and programs that synchronise
/// keep them.
namespace CalendarFolders
{

/// The folders there are, each once: those that khal is told of, and those where it and others look by
/// themselves.
std::vector<std::filesystem::path> folders(const UserFolders &user);

/// The events in them and up to three folders below. std::nullopt where there are no such folders. Files that
/// cannot be read, that are none or that are larger than 16 megabytes are left out, and so are events with
/// the UIDs in `except`.
CalendarStore::Answer events(const UserFolders &user, const CalendarWindow &window,
                             const FetchDeadline &limit, const QSet<QByteArray> &except = {});

} // namespace CalendarFolders
