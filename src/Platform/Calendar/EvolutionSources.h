#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

class QDBusMessage;

/// What Evolution Data Server says it has: for each source its UID and, as lines of groups, keys and values,
/// what it is.
using EvolutionSources = QMap<QString, QString>;

/// Empty where the answer is none, or not of the form that is expected.
EvolutionSources evolutionSources(const QDBusMessage &answer);

/// The UIDs of the sources that are calendars in use, by themselves and by the account they belong to.
QStringList enabledCalendars(const EvolutionSources &sources);
