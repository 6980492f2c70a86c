#include "Tasks/ClockText.h"

#include "Models/LocalTime.h"

using namespace Qt::StringLiterals;

QString ClockText::time(Timestamp moment, const QTimeZone &zone, const QLocale &locale)
{
    // A format of its own would need the marker beside it to be one of twelve hours.
    const QTime time = localTime(moment, zone).time();
    const int hour = (time.hour() + 11) % 12 + 1;
    return locale.toString(hour) + u':' + locale.toString(time, u"mm"_s);
}

QString ClockText::marker(Timestamp moment, const QTimeZone &zone, const QLocale &locale)
{
    return localTime(moment, zone).time().hour() < 12 ? locale.amText() : locale.pmText();
}

QString ClockText::date(Timestamp moment, const QTimeZone &zone, const QLocale &locale)
{
    return locale.toString(localTime(moment, zone).date(), u"dddd, MMM d"_s);
}
