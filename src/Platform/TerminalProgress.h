#pragma once

#include "Services/Clock.h"

#include <QString>

#include <cstdio>
#include <functional>

/// A progress line on a terminal. It appears after a delay and is erased at the end. Prints nothing if the
/// stream is not a terminal.
class TerminalProgress
{
public:
    /// Returns the text of the line, such as "Exporting 12 of 100 files".
    using Words = std::function<QString(qsizetype done, qsizetype all)>;

    explicit TerminalProgress(Words words, const Clock &clock, std::FILE *stream = stderr);
    ~TerminalProgress();
    Q_DISABLE_COPY_MOVE(TerminalProgress)

    void show(qsizetype done, qsizetype all);

private:
    const Words m_words;
    const Clock &m_clock;
    std::FILE *const m_stream;
    const bool m_isTerminal;
    Timestamp m_lastShown;
    bool m_isShown = false;
};
