#pragma once

#include "Services/Clock.h"

#include <QString>

#include <cstdio>

/// A progress line on a terminal. It appears after a delay and is erased at the end. Prints nothing if the
/// stream is not a terminal.
class TerminalProgress
{
public:
    /// As in "Exporting 12 of 100 files".
    TerminalProgress(QString verb, QString noun, const Clock &clock, std::FILE *stream = stderr);
    ~TerminalProgress();
    Q_DISABLE_COPY_MOVE(TerminalProgress)

    void show(qsizetype done, qsizetype all);

private:
    const QString m_verb;
    const QString m_noun;
    const Clock &m_clock;
    std::FILE *const m_stream;
    const bool m_isTerminal;
    Timestamp m_lastShown;
    bool m_isShown = false;
};
