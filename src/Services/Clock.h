#pragma once

#include "Models/Timestamp.h"

#include <QTimeZone>

/// What time it is, and where.
class Clock
{
public:
    virtual ~Clock() = default;

    virtual Timestamp now() const = 0;
    virtual QTimeZone timeZone() const = 0;
};
