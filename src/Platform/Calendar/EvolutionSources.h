#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

class QDBusMessage;

/// The sources of Evolution Data Server: for each UID its description in key file format.
using EvolutionSources = QMap<QString, QString>;

/// Returns an empty map if the reply is an error or malformed.
EvolutionSources evolutionSources(const QDBusMessage &answer);

/// Returns the UIDs of the calendar sources that are enabled, as is the account they belong to.
QStringList enabledCalendars(const EvolutionSources &sources);
