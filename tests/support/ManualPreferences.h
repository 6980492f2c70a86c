#pragma once

#include "Services/Preferences.h"

#include <QHash>

#include <variant>

/// Preferences in memory.
class ManualPreferences : public Preferences
{
public:
    /// A text represents every value that is neither a number nor a date.
    using Value = std::variant<qint64, Timestamp, QString>;

    QHash<QString, Value> values;
    /// The number of stored values.
    int writes = 0;

    std::optional<qint64> integer(const QString &key) const override { return value<qint64>(key); }
    std::optional<Timestamp> date(const QString &key) const override { return value<Timestamp>(key); }
    void setInteger(const QString &key, qint64 value) override { set(key, value); }
    void setDate(const QString &key, Timestamp value) override { set(key, value); }

private:
    template <typename Kind>
    std::optional<Kind> value(const QString &key) const
    {
        const auto found = values.find(key);
        const Kind *kept = found == values.end() ? nullptr : std::get_if<Kind>(&*found);
        return kept ? std::optional(*kept) : std::nullopt;
    }

    void set(const QString &key, const Value &value)
    {
        values.insert(key, value);
        ++writes;
    }
};
