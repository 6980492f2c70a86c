#pragma once

#include "Models/Timestamp.h"

#include <QTimeZone>

class Preferences;

/// For how many days in a row the program has been used, as it is kept in the preferences.
namespace WritingStreak
{

/// Takes down the use of this very day, unless that was done, and tells for how many days in a row there was
/// one. The calendar is that of the zone the user is in now. A day left out begins the count anew, and so
/// does a last use in the future, after a clock was set back.
qint64 currentStreak(Preferences &preferences, Timestamp now, const QTimeZone &zone);

} // namespace WritingStreak
