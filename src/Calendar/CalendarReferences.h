#pragma once

#include <QByteArray>
#include <QList>

/// What a store has to be asked for besides the events it found.
struct CalendarReferences {
    /// The UIDs of what repeats or was changed, each once.
    QList<QByteArray> repeatingUids = {};
    /// The zones that are known neither to the system nor described in the text, each once.
    QList<QByteArray> unknownZones = {};

    /// Of the events of a text.
    static CalendarReferences in(QByteArrayView text);
};
