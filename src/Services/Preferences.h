#pragma once

#include "Models/Timestamp.h"

#include <QString>

#include <optional>

/// Persistent settings by key. A value of another type counts as absent. Failures to save are ignored.
class Preferences
{
public:
    virtual ~Preferences() = default;

    virtual std::optional<qint64> integer(const QString &key) const = 0;
    virtual std::optional<Timestamp> date(const QString &key) const = 0;
    virtual void setInteger(const QString &key, qint64 value) = 0;
    virtual void setDate(const QString &key, Timestamp value) = 0;
};
