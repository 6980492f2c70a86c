#include "Tasks/WritingStreak.h"

#include "Models/LocalTime.h"
#include "Services/Preferences.h"

using namespace Qt::StringLiterals;

namespace
{
const QString lastWriteDateKey = u"pelko.lastWriteDate"_s;
const QString currentStreakKey = u"pelko.currentStreak"_s;

/// Returns the number of days, or std::nullopt if the date is out of range.
std::optional<qint64> daysBetween(const QDate &first, const QDate &second)
{
    return first.isValid() && second.isValid() ? std::optional(first.daysTo(second)) : std::nullopt;
}

qint64 onePlus(qint64 streak)
{
    qint64 sum = 0;
    if (__builtin_add_overflow(streak, 1, &sum))
        qFatal("WritingStreak: the streak overflows.");
    return sum;
}
} // namespace

qint64 WritingStreak::currentStreak(Preferences &preferences, Timestamp now, const QTimeZone &zone)
{
    const QDate today = localTime(now, zone).date();
    const auto begin = [&](qint64 streak) {
        preferences.setInteger(currentStreakKey, streak);
        preferences.setDate(lastWriteDateKey, timestampOf(today.startOfDay(zone)));
        return streak;
    };
    const std::optional<Timestamp> lastWriteDate = preferences.date(lastWriteDateKey);
    if (!lastWriteDate)
        return begin(1);
    const qint64 streak = preferences.integer(currentStreakKey).value_or(0);
    const std::optional<qint64> days = daysBetween(localTime(*lastWriteDate, zone).date(), today);
    if (!days || *days == 0)
        return streak;
    return begin(*days == 1 ? onePlus(streak) : 1);
}
