#pragma once

#include "Models/Timestamp.h"

#include <QTimeZone>

class Preferences;

/// The number of consecutive days on which the program was used, stored in the preferences.
namespace WritingStreak
{

/// Records that the program is used today and returns the number of consecutive days, at least 1. Days are
/// those of `zone`. The count restarts after a missed day, and if the last use is in the future because the
/// clock was set back.
qint64 currentStreak(Preferences &preferences, Timestamp now, const QTimeZone &zone);

} // namespace WritingStreak
