#pragma once

#include <QStringList>

/// Starts this program again to write at random, the same time for each of the seeds, a minute at most. What
/// is left of the time goes to more new seeds if "new" is the last of them. Runs that fail are made as short
/// as may be, printed, and kept beside the program. `options` are handed on. Tells whether none failed.
bool writeAtRandom(const QStringList &seeds, int seconds, const QStringList &options);
