#include "Tasks/ClockText.h"

#include "Models/LocalTime.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace
{
QString timeFormat()
{
    //: Format of the time of day. "h:mm a" for a clock of twelve hours; "H:mm" or another one without the
    //: letter a for one of twenty-four.
    return QCoreApplication::translate("ClockText", "h:mm a");
}

/// Returns whether the user's clock has AM and PM.
bool hasMarker()
{
    return timeFormat().contains(u'a');
}
} // namespace

QString ClockText::time(Timestamp moment, const QTimeZone &zone, const QLocale &locale)
{
    const QTime time = localTime(moment, zone).time();
    if (!hasMarker())
        return locale.toString(time, timeFormat());
    // "h" counts to twelve only in a format with "a".
    const int hour = (time.hour() + 11) % 12 + 1;
    return locale.toString(hour) + u':' + locale.toString(time, u"mm"_s);
}

QString ClockText::marker(Timestamp moment, const QTimeZone &zone, const QLocale &locale)
{
    if (!hasMarker())
        return {};
    return localTime(moment, zone).time().hour() < 12 ? locale.amText() : locale.pmText();
}

QString ClockText::date(Timestamp moment, const QTimeZone &zone, const QLocale &locale)
{
    //: Format of today's date: weekday, abbreviated month and day. Keep the letters d and M.
    const QString format = QCoreApplication::translate("ClockText", "dddd, MMM d");
    return locale.toString(localTime(moment, zone).date(), format);
}
