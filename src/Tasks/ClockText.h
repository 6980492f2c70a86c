#pragma once

#include "Models/Timestamp.h"

#include <QLocale>
#include <QTimeZone>

/// Texts for times and dates on the tasks panel.
namespace ClockText
{

/// Returns hour and minute, such as "7:42".
QString time(Timestamp moment, const QTimeZone &zone, const QLocale &locale);
/// Returns "AM" or "PM"; empty for a clock of twenty-four hours.
QString marker(Timestamp moment, const QTimeZone &zone, const QLocale &locale);
/// Returns weekday and date, such as "Thursday, Oct 16".
QString date(Timestamp moment, const QTimeZone &zone, const QLocale &locale);

} // namespace ClockText
