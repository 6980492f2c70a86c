#pragma once

#include "Services/Preferences.h"

#include <QSettings>

/// Preferences in a text file in the user's configuration folder: numbers in decimal, dates as ISO 8601 in
/// UTC. Each change is written before the call returns; failures to write are ignored.
class UserPreferences : public Preferences
{
public:
    UserPreferences();
    /// Stores the values in this file.
    explicit UserPreferences(const QString &file);

    std::optional<qint64> integer(const QString &key) const override;
    std::optional<Timestamp> date(const QString &key) const override;
    void setInteger(const QString &key, qint64 value) override;
    void setDate(const QString &key, Timestamp value) override;

private:
    /// Returns an empty text for a value that is not a single text.
    QString text(const QString &key) const;
    void set(const QString &key, const QString &text);

    QSettings m_settings;
};
