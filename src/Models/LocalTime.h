#pragma once

#include "Models/Timestamp.h"

#include <QDateTime>
#include <QTimeZone>

/// Converts a timestamp to a date and time in a zone. Timestamps beyond the range of QDateTime, about 270,000
/// years, are clamped.
QDateTime localTime(Timestamp time, const QTimeZone &zone);

/// Converts a date and time to a timestamp with a precision of a millisecond.
Timestamp timestampOf(const QDateTime &time);
