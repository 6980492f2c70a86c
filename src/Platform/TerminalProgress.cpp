#include "Platform/TerminalProgress.h"

#include <unistd.h>

namespace
{
constexpr Timestamp quietTime = 0.4;    // seconds in which most work is done
constexpr Timestamp betweenLooks = 0.1; // seconds between updates
} // namespace

TerminalProgress::TerminalProgress(Words words, const Clock &clock, std::FILE *stream)
    : m_words(std::move(words))
    , m_clock(clock)
    , m_stream(stream)
    , m_isTerminal(::isatty(::fileno(stream)) == 1)
    , m_lastShown(clock.now())
{
}

TerminalProgress::~TerminalProgress()
{
    if (!m_isShown)
        return;
    std::fputs("\r\033[K", m_stream);
    std::fflush(m_stream);
}

void TerminalProgress::show(qsizetype done, qsizetype all)
{
    const Timestamp now = m_clock.now();
    if (!m_isTerminal || now - m_lastShown < (m_isShown ? betweenLooks : quietTime))
        return;
    m_isShown = true;
    m_lastShown = now;
    const QString line = u'\r' + m_words(done, all);
    std::fputs(line.toLocal8Bit().constData(), m_stream);
    std::fflush(m_stream);
}
