#pragma once

#include "Models/Timestamp.h"

#include <QString>

#include <optional>

/// The few values kept for the user from one run to the next, by name. A value that is of another kind than
/// the one asked for counts as absent. Nothing tells whether the values were really kept: nobody could do
/// anything about it.
class Preferences
{
public:
    virtual ~Preferences() = default;

    virtual std::optional<qint64> integer(const QString &key) const = 0;
    virtual std::optional<Timestamp> date(const QString &key) const = 0;
    virtual void setInteger(const QString &key, qint64 value) = 0;
    virtual void setDate(const QString &key, Timestamp value) = 0;
};
