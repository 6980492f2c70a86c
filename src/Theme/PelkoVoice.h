#pragma once

#include <QStringList>

/// Picks random lines from pools, never the same line twice in a row for one key. The last lines are not
/// stored between launches. Interface thread only.
class PelkoVoice
{
public:
    PelkoVoice() = delete;

    /// Returns a random line of the pool, which must not be empty. The last line is remembered by key, not by
    /// pool.
    static QString pick(const QStringList &pool, const QString &key);

    /// Titles of the error alert; key "error".
    static const QStringList &errorPool();
    /// Texts of an empty space; key "emptyNotes".
    static const QStringList &emptyNotesPool();
    /// Greetings of the main view; key "greeting".
    static const QStringList &greetingPool();
};
