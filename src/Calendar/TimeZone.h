#pragma once

#include <QTimeZone>

/// Converts between UTC and wall time. Both are whole seconds since 1970-01-01 00:00.
class TimeZone
{
public:
    virtual ~TimeZone() = default;

    /// Returns the offset from UTC in seconds at a UTC time; positive to the east.
    virtual qint64 offsetAt(qint64 utc) const = 0;

    qint64 wall(qint64 utc) const { return utc + offsetAt(utc); }

    /// Returns the UTC time of a wall time. An ambiguous wall time is the earlier one; a skipped one is
    /// converted with the offset before the transition.
    qint64 utc(qint64 wall) const;
};

/// A zone of the tz database.
class SystemTimeZone : public TimeZone
{
public:
    explicit SystemTimeZone(const QTimeZone &zone);

    qint64 offsetAt(qint64 utc) const override;

private:
    QTimeZone m_zone;
    bool m_isUtc;
};
