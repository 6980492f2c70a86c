#pragma once

#include <QTimeZone>

/// A place where clocks hang on walls. Times are whole seconds since 1970, of the world or, as the clock
/// shows them, of the wall.
class TimeZone
{
public:
    virtual ~TimeZone() = default;

    /// By how many seconds the clocks of the place are ahead of the world's at a moment.
    virtual qint64 offsetAt(qint64 utc) const = 0;

    qint64 wall(qint64 utc) const { return utc + offsetAt(utc); }

    /// When the clocks show a time. Of two moments it is the first; a time that they leave out is counted on
    /// from before the change.
    qint64 utc(qint64 wall) const;
};

/// A zone that the system knows.
class SystemTimeZone : public TimeZone
{
public:
    explicit SystemTimeZone(const QTimeZone &zone);

    qint64 offsetAt(qint64 utc) const override;

private:
    QTimeZone m_zone;
    bool m_isUtc;
};
