#pragma once

#include "Services/Preferences.h"

#include <QSettings>

/// Preferences in the user's configuration folder, in a file that can be read: numbers as they are written,
/// dates as ISO 8601 in UTC. Whatever is set is on the disk when the call returns, as far as the disk lets
/// it.
class UserPreferences : public Preferences
{
public:
    UserPreferences();
    /// Keeps the values in that file.
    explicit UserPreferences(const QString &file);

    std::optional<qint64> integer(const QString &key) const override;
    std::optional<Timestamp> date(const QString &key) const override;
    void setInteger(const QString &key, qint64 value) override;
    void setDate(const QString &key, Timestamp value) override;

private:
    /// Empty for a value that is no single text.
    QString text(const QString &key) const;
    void set(const QString &key, const QString &text);

    QSettings m_settings;
};
