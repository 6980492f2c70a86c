#pragma once

#include "Models/Timestamp.h"

#include <QLocale>
#include <QTimeZone>

/// How a moment is told on the panel, to whoever lives in that zone and reads in that language.
namespace ClockText
{

/// Hour and minute on a dial of twelve, like "7:42".
QString time(Timestamp moment, const QTimeZone &zone, const QLocale &locale);
/// Which half of the day it is, like "AM".
QString marker(Timestamp moment, const QTimeZone &zone, const QLocale &locale);
/// Weekday and day, like "Thursday, Oct 16".
QString date(Timestamp moment, const QTimeZone &zone, const QLocale &locale);

} // namespace ClockText
