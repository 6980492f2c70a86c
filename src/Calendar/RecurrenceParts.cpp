#include "Calendar/RecurrenceParts.h"

#include "Calendar/CalendarText.h"

#include <algorithm>
#include <array>
#include <limits>

namespace
{
using Frequency = RecurrenceParts::Frequency;

constexpr std::array<QByteArrayView, 7> frequencies{"SECONDLY", "MINUTELY", "HOURLY", "DAILY",
                                                    "WEEKLY",   "MONTHLY",  "YEARLY"};
constexpr std::array<QByteArrayView, 7> weekDays{"MO", "TU", "WE", "TH", "FR", "SA", "SU"};

bool isSame(QByteArrayView text, QByteArrayView name)
{
    return text.trimmed().compare(name, Qt::CaseInsensitive) == 0;
}

template <std::size_t size>
std::optional<int> indexIn(const std::array<QByteArrayView, size> &names, QByteArrayView text)
{
    const auto found =
        std::ranges::find_if(names, [text](QByteArrayView name) { return isSame(text, name); });
    return found == names.end() ? std::nullopt : std::optional(int(found - names.begin()));
}

std::optional<int> numberIn(QByteArrayView text, int least, int most)
{
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

template <typename Value>
void sortUnique(std::vector<Value> &values)
{
    std::ranges::sort(values);
    const auto doubles = std::ranges::unique(values);
    values.erase(doubles.begin(), doubles.end());
}

bool readList(std::vector<int> &list, QByteArrayView text, int least, int most)
{
    for (const QByteArrayView item : listItems(text)) {
        const auto number = numberIn(item, least, most);
        if (!number)
            return false;
        list.push_back(*number);
    }
    sortUnique(list);
    return true;
}

/// Reads numbers that count from the start or, if negative, from the end.
bool readPlaces(std::vector<int> &list, QByteArrayView text, int most)
{
    return readList(list, text, -most, most) && !std::ranges::binary_search(list, 0);
}

bool readWeekDays(std::vector<RecurrenceParts::WeekDay> &list, QByteArrayView text)
{
    for (const QByteArrayView whole : listItems(text)) {
        const QByteArrayView item = whole.trimmed();
        const auto day = item.size() < 2 ? std::nullopt : indexIn(weekDays, item.last(2));
        const QByteArrayView digits = day ? item.chopped(2) : item;
        const auto position = digits.isEmpty() ? std::optional(0) : numberIn(digits, -53, 53);
        if (!day || !position || (*position == 0 && !digits.isEmpty()))
            return false;
        list.push_back({.day = *day + 1, .position = *position});
    }
    sortUnique(list);
    return true;
}

/// Stores an optional value; returns whether it has a value.
template <typename Value, typename Found>
bool take(Value &value, const std::optional<Found> &found)
{
    if (!found)
        return false;
    const Found &read = *found;
    value = read;
    return true;
}

bool readLimit(RecurrenceParts &parts, QByteArrayView name, QByteArrayView value)
{
    constexpr int most = std::numeric_limits<int>::max();
    if (isSame(name, "INTERVAL"))
        return take(parts.interval, numberIn(value, 1, most));
    if (isSame(name, "COUNT"))
        return take(parts.count, numberIn(value, 1, most));
    if (isSame(name, "UNTIL"))
        return take(parts.until, ParsedTime::parse(value));
    if (isSame(name, "WKST")) {
        const auto day = indexIn(weekDays, value);
        parts.firstDayOfWeek = day.value_or(0) + 1;
        return day.has_value();
    }
    if (isSame(name, "RSCALE"))
        return isSame(value, "GREGORIAN");
    return !isSame(name, "SKIP") || isSame(value, "OMIT");
}

bool readPart(RecurrenceParts &parts, QByteArrayView name, QByteArrayView value)
{
    if (isSame(name, "BYMONTH"))
        return readList(parts.months, value, 1, 12);
    if (isSame(name, "BYWEEKNO"))
        return readPlaces(parts.weeks, value, 53);
    if (isSame(name, "BYYEARDAY"))
        return readPlaces(parts.yearDays, value, 366);
    if (isSame(name, "BYMONTHDAY"))
        return readPlaces(parts.monthDays, value, 31);
    if (isSame(name, "BYDAY"))
        return readWeekDays(parts.weekDays, value);
    if (isSame(name, "BYHOUR"))
        return readList(parts.hours, value, 0, 23);
    if (isSame(name, "BYMINUTE"))
        return readList(parts.minutes, value, 0, 59);
    if (isSame(name, "BYSECOND"))
        return readList(parts.seconds, value, 0, 59); // 60, a leap second, is not supported
    if (isSame(name, "BYSETPOS"))
        return readPlaces(parts.positions, value, 366);
    return readLimit(parts, name, value);
}

bool isAllowed(const RecurrenceParts &parts)
{
    const Frequency frequency = parts.frequency;
    const bool isNumbered =
        std::ranges::any_of(parts.weekDays, [](const auto &weekDay) { return weekDay.position != 0; });
    if (isNumbered && (frequency < Frequency::monthly || !parts.weeks.empty()))
        return false;
    if (!parts.weeks.empty() && frequency != Frequency::yearly)
        return false;
    if (!parts.monthDays.empty() && frequency == Frequency::weekly)
        return false;
    return parts.yearDays.empty() || frequency == Frequency::yearly || parts.isWithinDay();
}
} // namespace

std::optional<RecurrenceParts> RecurrenceParts::parse(QByteArrayView text)
{
    RecurrenceParts parts;
    bool hasFrequency = false;
    for (const QByteArray &part : text.toByteArray().split(';')) {
        if (part.trimmed().isEmpty())
            continue;
        const qsizetype equals = part.indexOf('=');
        if (equals < 0)
            return std::nullopt;
        const QByteArrayView name = QByteArrayView(part).first(equals);
        const QByteArrayView value = QByteArrayView(part).sliced(equals + 1);
        if (isSame(name, "FREQ")) {
            const auto frequency = indexIn(frequencies, value);
            if (!frequency)
                return std::nullopt;
            parts.frequency = Frequency(*frequency);
            hasFrequency = true;
        } else if (!readPart(parts, name, value)) {
            return std::nullopt;
        }
    }
    return hasFrequency && isAllowed(parts) ? std::optional(parts) : std::nullopt;
}
