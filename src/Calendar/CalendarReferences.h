#pragma once

#include <QByteArray>
#include <QList>

/// The UIDs and time zones that a list of events refers to, to be fetched separately.
struct CalendarReferences {
    /// The UIDs of recurring and overridden events, without duplicates.
    QList<QByteArray> repeatingUids = {};
    /// The TZIDs that are neither in the tz database nor described in the text, without duplicates.
    QList<QByteArray> unknownZones = {};

    /// Collects the references of the events in an iCalendar text.
    static CalendarReferences in(QByteArrayView text);
};
