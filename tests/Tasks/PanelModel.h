#pragma once

#include <QDateTime>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

/// An independent model of the streak, the clock and the calendar card of the tasks panel, computed with
/// whole days and seconds. Times are seconds since 1970.
class PanelModel
{
public:
    qint64 now = 0;
    QTimeZone zone = QTimeZone::utc();
    bool isSeen = false;

    std::optional<qint64> lastDay; // the start of the last counted day as it was stored
    qint64 streak = 0;
    QString text; // "7:42 AM Thursday, Oct 16"
    int fetches = 0;
    std::vector<qint64> ends; // of the events in the last answer

    void open()
    {
        isSeen = true;
        ends.clear();
        look();
        fetch();
    }
    void setSeen(bool seen)
    {
        if (std::exchange(isSeen, seen) == seen || !seen)
            return;
        look();
        fetch();
    }
    void tick()
    {
        if (!isSeen)
            return;
        look();
        const bool hasEnded =
            std::ranges::any_of(ends, [this](qint64 end) { return end > m_fetchTime && end <= now; });
        if (hasEnded || now < m_fetchTime || zone != m_fetchZone || dayOf(now) != dayOf(m_fetchTime))
            fetch();
    }
    void type()
    {
        if (isSeen)
            count();
    }

private:
    static qint64 floorDay(qint64 wall) { return wall / 86400 - (wall % 86400 < 0 ? 1 : 0); }
    qint64 wall(qint64 moment) const
    {
        return moment + zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(moment, QTimeZone::utc()));
    }
    qint64 dayOf(qint64 moment) const { return floorDay(wall(moment)); }

    /// Returns the first second of today. No day is longer than 26 hours.
    qint64 today() const
    {
        qint64 before = now - 26 * 3600;
        qint64 within = now;
        while (within - before > 1) {
            const qint64 middle = (before + within) / 2;
            (dayOf(middle) < dayOf(now) ? before : within) = middle;
        }
        return within;
    }

    void count()
    {
        const qint64 days = lastDay ? dayOf(now) - dayOf(*lastDay) : -1;
        if (days == 0)
            return;
        streak = days == 1 ? streak + 1 : 1;
        lastDay = today();
    }

    void look()
    {
        count();
        const qint64 second = wall(now) - dayOf(now) * 86400;
        const qint64 hour = second / 3600;
        text = QStringLiteral("%1:%2 %3 %4")
                   .arg((hour + 11) % 12 + 1)
                   .arg(second / 60 % 60, 2, 10, QLatin1Char('0'))
                   .arg(QLatin1StringView(hour < 12 ? "AM" : "PM"), dateText(dayOf(now)));
    }

    static QString dateText(qint64 dayNumber)
    {
        static const std::array weekDays{"Thursday", "Friday",  "Saturday", "Sunday",
                                         "Monday",   "Tuesday", "Wednesday"}; // 1970 began with the first
        static const std::array months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
        qint64 day = dayNumber;
        int year = 1970;
        const auto isLeap = [](int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; };
        for (; day >= (isLeap(year) ? 366 : 365); ++year)
            day -= isLeap(year) ? 366 : 365;
        const std::array lengths{31, isLeap(year) ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        std::size_t month = 0;
        for (; day >= lengths[month]; ++month)
            day -= lengths[month];
        return QStringLiteral("%1, %2 %3")
            .arg(QLatin1StringView(weekDays[std::size_t(dayNumber % 7)]), QLatin1StringView(months[month]))
            .arg(day + 1);
    }

    void fetch()
    {
        ++fetches;
        m_fetchTime = now;
        m_fetchZone = zone;
    }

    qint64 m_fetchTime = 0;
    QTimeZone m_fetchZone;
};
