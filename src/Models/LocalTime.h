#pragma once

#include "Models/Timestamp.h"

#include <QDateTime>
#include <QTimeZone>

/// What calendar and clock of that zone say at that moment. A file may hold any number, a calendar may not:
/// times beyond some 270,000 years count as its edge.
QDateTime localTime(Timestamp time, const QTimeZone &zone);

/// The moment that a date and a time of day name, to the millisecond.
Timestamp timestampOf(const QDateTime &time);
