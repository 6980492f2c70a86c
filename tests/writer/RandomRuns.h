#pragma once

#include <QStringList>

/// Starts this program again to write at random, the same time for each of the seeds. The first run that
/// fails is made as short as may be and printed. `options` are handed on. Tells whether none failed.
bool writeAtRandom(const QStringList &seeds, int seconds, const QStringList &options);
