#pragma once

#include "Services/Clock.h"

/// The computer's clock and the user's time zone.
class SystemClock : public Clock
{
public:
    Timestamp now() const override;
    QTimeZone timeZone() const override;
};
