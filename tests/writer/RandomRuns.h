#pragma once

#include <QStringList>

/// Runs this program as child processes that write at random, each seed for the same time, at most a minute.
/// If the last seed is "new", the remaining time is used for more new seeds. Failing runs are shrunk, printed
/// and kept beside the program. `options` are passed on. Returns whether none failed.
bool writeAtRandom(const QStringList &seeds, int seconds, const QStringList &options);
