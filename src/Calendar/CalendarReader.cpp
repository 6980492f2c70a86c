#include "Calendar/CalendarReader.h"

#include "Calendar/CalendarText.h"

#include <utility>

namespace
{
constexpr std::size_t mostObservances = 200;
constexpr qsizetype mostRules = 8;

bool isNamed(QByteArrayView component, QByteArrayView name)
{
    return component.trimmed().compare(name, Qt::CaseInsensitive) == 0;
}
} // namespace

void CalendarReader::read(QByteArrayView text)
{
    m_zones.beginText();
    m_event.reset();
    m_zone.reset();
    m_depth = 0;
    if (text.startsWith("\xEF\xBB\xBF"))
        text = text.sliced(3);
    ContentLines lines(text);
    while (const auto line = lines.next()) {
        if (line->is("BEGIN"))
            begin(line->value);
        else if (line->is("END"))
            end(line->value);
        else if (m_event && m_depth == 0)
            readEventLine(*line);
        else if (m_zone)
            readZoneLine(*line);
    }
}

void CalendarReader::begin(QByteArrayView component)
{
    // Events are never nested: at a BEGIN, an earlier event has lost its END.
    if (isNamed(component, "VEVENT")) {
        m_event.emplace();
        m_zone.reset();
        m_depth = 0;
    } else if (m_event) {
        ++m_depth;
    } else if (isNamed(component, "VTIMEZONE")) {
        m_zone.emplace();
    } else if (m_zone && m_zone->observances.size() < mostObservances) {
        m_zone->observances.emplace_back();
        m_zone->isInObservance = true;
    }
}

void CalendarReader::end(QByteArrayView component)
{
    if (m_event && m_depth == 0 && isNamed(component, "VEVENT")) {
        finishEvent();
    } else if (m_event && m_depth > 0) {
        --m_depth;
    } else if (m_zone && isNamed(component, "VTIMEZONE")) {
        m_zones.describe(m_zone->name, m_zone->observances);
        m_zone.reset();
    } else if (m_zone) {
        m_zone->isInObservance = false;
    } else {
        m_event.reset();
    }
}

void CalendarReader::readEventLine(const ContentLine &line)
{
    CalendarEntry &entry = m_event->entry;
    if (line.is("UID")) {
        entry.uid = line.value.trimmed().toByteArray();
    } else if (line.is("SUMMARY")) {
        entry.title = titleFrom(line.value);
    } else if (line.is("DTSTART")) {
        const auto start = m_zones.time(line, line.value);
        m_event->hasStart = start.has_value();
        entry.start = start.value_or(CalendarTime{});
    } else if (line.is("DTEND")) {
        entry.end = m_zones.time(line, line.value);
    } else if (line.is("DURATION")) {
        const auto span = parseDuration(line.value);
        m_event->hasSpan = span.has_value();
        entry.span = span.value_or(CalendarDuration{});
    } else if (line.is("STATUS")) {
        entry.isCancelled = isNamed(line.value, "CANCELLED");
    } else {
        readRecurrenceLine(line);
    }
}

void CalendarReader::readRecurrenceLine(const ContentLine &line)
{
    CalendarEntry &entry = m_event->entry;
    if (line.is("RRULE")) {
        const auto rule = RecurrenceRule::parse(line.value);
        if (rule && entry.rules.size() < mostRules)
            entry.rules.append(*rule);
    } else if (line.is("RDATE")) {
        addRecurrenceDates(line);
    } else if (line.is("EXDATE")) {
        addExceptions(line);
    } else if (line.is("RECURRENCE-ID")) {
        entry.recurrenceId = m_zones.time(line, line.value);
        const auto range = line.parameter("RANGE");
        entry.isThisAndFuture = range && isNamed(*range, "THISANDFUTURE");
    }
}

void CalendarReader::addRecurrenceDates(const ContentLine &line)
{
    for (const QByteArrayView value : listItems(line.value)) {
        const qsizetype slash = value.indexOf('/');
        const auto start = m_zones.time(line, slash < 0 ? value : value.first(slash));
        if (!start)
            continue;
        RecurrenceDate extra{.start = *start};
        if (slash >= 0) {
            const QByteArrayView rest = value.sliced(slash + 1);
            extra.span = parseDuration(rest);
            if (const auto end = m_zones.time(line, rest); end && !extra.span)
                extra.span = durationBetween(*start, *end);
        }
        m_event->entry.recurrenceDates.append(extra);
    }
}

void CalendarReader::addExceptions(const ContentLine &line)
{
    for (const QByteArrayView value : listItems(line.value)) {
        if (const auto time = m_zones.time(line, value))
            m_event->entry.exceptions.append(*time);
    }
}

void CalendarReader::finishEvent()
{
    EventDraft draft = *std::exchange(m_event, std::nullopt);
    if (!draft.hasStart)
        return;
    CalendarEntry &entry = draft.entry;
    if (entry.start.isDay && !draft.hasSpan)
        entry.span = {.days = 1};
    m_take(std::move(entry));
}

void CalendarReader::readZoneLine(const ContentLine &line)
{
    if (line.is("TZID"))
        m_zone->name = line.value.trimmed().toByteArray();
    if (!m_zone->isInObservance)
        return;
    Observance &observance = m_zone->observances.back();
    if (line.is("DTSTART")) {
        observance.start = ParsedTime::parse(line.value).value_or(ParsedTime{}).wall;
    } else if (line.is("TZOFFSETFROM")) {
        observance.offsetBefore = offsetFrom(line.value);
    } else if (line.is("TZOFFSETTO")) {
        observance.offset = offsetFrom(line.value);
    } else if (line.is("RDATE")) {
        for (const QByteArrayView value : listItems(line.value)) {
            if (const auto time = ParsedTime::parse(value))
                observance.dates.push_back(time->wall);
        }
    } else if (line.is("RRULE")) {
        const auto rule = RecurrenceRule::parse(line.value);
        if (rule && rule->isYearly())
            observance.rule = rule;
    }
}
