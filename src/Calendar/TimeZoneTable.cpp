#include "Calendar/TimeZoneTable.h"

#include <algorithm>
#include <array>

namespace
{
constexpr qsizetype longestName = 256;
constexpr qsizetype mostNames = 1000; // looking up an unknown zone is slow

/// Zone names without a continent. Qt accepts any other word as a zone with offset 0.
constexpr std::array shortNames{"GMT", "WET", "CET",     "MET",     "EET",     "EST",
                                "MST", "HST", "EST5EDT", "CST6CDT", "MST7MDT", "PST8PDT"};

bool isZoneName(const QByteArray &name)
{
    if (name.contains("..") || name.startsWith('/'))
        return false;
    const qsizetype slashes = name.count('/');
    if (slashes > 0)
        return slashes < 3;
    return std::ranges::any_of(shortNames, [&name](const char *known) { return name == known; });
}
} // namespace

QTimeZone systemZone(const QByteArray &name)
{
    if (name.size() > longestName)
        return {};
    const QByteArray ofWindows = QTimeZone::windowsIdToDefaultIanaId(name);
    if (!ofWindows.isEmpty())
        return QTimeZone(ofWindows);
    // "/somebody.org/2024/Europe/Berlin": the IANA id is the last one to three components.
    QByteArray rest = name;
    for (;;) {
        if (rest.compare("UTC", Qt::CaseInsensitive) == 0)
            return QTimeZone::utc();
        if (isZoneName(rest)) {
            if (const QTimeZone zone(rest); zone.isValid())
                return zone;
        }
        const qsizetype slash = rest.indexOf('/');
        if (slash < 0)
            return {};
        rest = rest.sliced(slash + 1);
    }
}

TimeZoneTable::TimeZoneTable(const QTimeZone &local)
    : m_local(std::make_shared<SystemTimeZone>(local))
    , m_utc(std::make_shared<SystemTimeZone>(QTimeZone::utc()))
{
}

std::shared_ptr<const TimeZone> TimeZoneTable::named(QByteArrayView name)
{
    const auto key = QByteArray::fromRawData(name.data(), name.size());
    auto known = m_system.constFind(key);
    if (known == m_system.constEnd()) {
        if (m_system.size() >= mostNames)
            return m_local;
        const QTimeZone zone = systemZone(name.toByteArray());
        known = m_system.insert(name.toByteArray(),
                                zone.isValid() ? std::make_shared<SystemTimeZone>(zone) : nullptr);
    }
    return *known ? *known : written(name.toByteArray());
}

std::shared_ptr<VTimeZone> TimeZoneTable::written(const QByteArray &name)
{
    auto &zone = m_written[name];
    if (!zone)
        zone = std::make_shared<VTimeZone>(m_local);
    return zone;
}

void TimeZoneTable::describe(QByteArrayView name, const std::vector<Observance> &observances)
{
    written(name.toByteArray())->setObservances(observances);
}

std::optional<CalendarTime> TimeZoneTable::time(const ContentLine &line, QByteArrayView value)
{
    const auto written = ParsedTime::parse(value);
    if (!written)
        return std::nullopt;
    CalendarTime time{.wall = written->wall, .isDay = written->isDay, .zone = m_local};
    if (written->isDay)
        return time;
    if (written->isUtc)
        time.zone = m_utc;
    else if (const auto name = line.parameter("TZID"))
        time.zone = named(*name);
    return time;
}
