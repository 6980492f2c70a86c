#pragma once

#include "Calendar/RecurrenceParts.h"

#include <QDate>

#include <vector>

/// The days that a rule selects by its BY parts. Missing parts are taken from the start day.
class RecurrenceDays
{
public:
    /// `parts` must outlive this object.
    RecurrenceDays(const RecurrenceParts &parts, QDate start) : m_parts(parts), m_start(start) {}

    /// Returns whether a daily or shorter rule selects the day.
    bool isOn(QDate day) const;
    /// Return the days that the rule selects in a week, month or year. The year of a rule with BYWEEKNO
    /// consists of whole weeks.
    std::vector<QDate> inWeek(QDate first) const;
    std::vector<QDate> inMonth(int year, int month) const;
    std::vector<QDate> inYear(int year) const;

    /// The first day of the first week that has at least four days in that year.
    QDate firstWeek(int year) const;

private:
    bool isLikeStart(QDate day) const;
    bool isOnWeekDay(QDate day) const;
    bool hasPosition(QDate day, int position) const;

    const RecurrenceParts &m_parts;
    QDate m_start;
};
