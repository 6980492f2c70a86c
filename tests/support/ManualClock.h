#pragma once

#include "Services/Clock.h"

/// A clock that stands where a test puts it.
class ManualClock : public Clock
{
public:
    Timestamp time = 800'000'000;
    QTimeZone zone = QTimeZone::utc();

    Timestamp now() const override { return time; }
    QTimeZone timeZone() const override { return zone; }
};
