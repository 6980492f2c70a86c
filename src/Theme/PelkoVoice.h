#pragma once

#include <QStringList>

/// The program's voice: one line at random from a pool, never the line that was picked last time under the
/// same key. Not stored between launches. Interface thread only.
class PelkoVoice
{
public:
    PelkoVoice() = delete;

    /// The pool must not be empty. The memory belongs to the key, whatever the pool.
    static QString pick(const QStringList &pool, const QString &key);

    /// Titles of the error alert; key "error".
    static const QStringList &errorPool();
    /// What an empty space says; key "emptyNotes".
    static const QStringList &emptyNotesPool();
    /// What the main view opens with; key "greeting".
    static const QStringList &greetingPool();
};
