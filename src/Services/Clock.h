#pragma once

#include "Models/Timestamp.h"

#include <QTimeZone>

/// The wall clock and the local time zone.
class Clock
{
public:
    virtual ~Clock() = default;

    virtual Timestamp now() const = 0;
    virtual QTimeZone timeZone() const = 0;
};
