#pragma once

#include "Calendar/RecurrenceParts.h"

#include <QDate>

#include <vector>

/// Which days a rule names, by its parts that tell of days. What it leaves open, it takes from the first day.
class RecurrenceDays
{
public:
    /// `parts` have to live as long.
    RecurrenceDays(const RecurrenceParts &parts, QDate start) : m_parts(parts), m_start(start) {}

    /// Of a rule that repeats within a day or each so many days.
    bool isOn(QDate day) const;
    /// The days that the rule names in a week, month or year. A year of a rule with week numbers consists of
    /// whole weeks.
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
