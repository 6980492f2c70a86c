#pragma once

#include "Services/Clock.h"

/// A clock that shows the time set by the test.
class ManualClock : public Clock
{
public:
    Timestamp time = 800'000'000;
    QTimeZone zone = QTimeZone::utc();

    Timestamp now() const override { return time; }
    QTimeZone timeZone() const override { return zone; }
};
