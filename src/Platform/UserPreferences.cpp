#include "Platform/UserPreferences.h"

#include "Models/LocalTime.h"

using namespace Qt::StringLiterals;

UserPreferences::UserPreferences()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, u"Pelko"_s, u"Pelko"_s)
{
    m_settings.setFallbacksEnabled(false);
}

UserPreferences::UserPreferences(const QString &file) : m_settings(file, QSettings::IniFormat) {}

std::optional<qint64> UserPreferences::integer(const QString &key) const
{
    bool isNumber = false;
    const qint64 value = text(key).toLongLong(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

std::optional<Timestamp> UserPreferences::date(const QString &key) const
{
    const QDateTime time = QDateTime::fromString(text(key), Qt::ISODateWithMs);
    return time.isValid() ? std::optional(timestampOf(time)) : std::nullopt;
}

void UserPreferences::setInteger(const QString &key, qint64 value)
{
    set(key, QString::number(value));
}

void UserPreferences::setDate(const QString &key, Timestamp value)
{
    set(key, localTime(value, QTimeZone::utc()).toUTC().toString(Qt::ISODateWithMs));
}

QString UserPreferences::text(const QString &key) const
{
    const QVariant value = m_settings.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

void UserPreferences::set(const QString &key, const QString &text)
{
    m_settings.setValue(key, text);
    m_settings.sync();
}
