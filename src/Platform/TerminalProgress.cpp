#include "Platform/TerminalProgress.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{
constexpr qint64 patience = 400;     // milliseconds in which most work is done
constexpr qint64 betweenLooks = 100; // as often as anybody can read
} // namespace

TerminalProgress::TerminalProgress(QString verb, QString noun, std::FILE *stream)
    : m_verb(std::move(verb))
    , m_noun(std::move(noun))
    , m_stream(stream)
    , m_isTerminal(::isatty(::fileno(stream)) == 1)
{
    m_sinceShown.start();
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
    if (!m_isTerminal || m_sinceShown.elapsed() < (m_isShown ? betweenLooks : patience))
        return;
    m_isShown = true;
    m_sinceShown.restart();
    const QString line =
        u"\r%1 %2 of %3 %4"_s.arg(m_verb, QString::number(done), QString::number(all), m_noun);
    std::fputs(line.toLocal8Bit().constData(), m_stream);
    std::fflush(m_stream);
}
