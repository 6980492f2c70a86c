#include "Calendar/ContentLines.h"

#include <algorithm>
#include <cstring>

namespace
{
constexpr qsizetype longestLine = qsizetype(1) << 20;

/// Returns the position of a character outside of quotation marks, or -1.
qsizetype unquoted(QByteArrayView text, char first, char second)
{
    bool isQuoted = false;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const char letter = text[index];
        if (letter == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && (letter == first || letter == second))
            return index;
    }
    return -1;
}

QByteArrayView withoutQuotes(QByteArrayView value)
{
    const bool isQuoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
    return isQuoted ? value.sliced(1, value.size() - 2) : value;
}

std::optional<ContentLine> parse(QByteArrayView line)
{
    const qsizetype endOfName = unquoted(line, ':', ';');
    if (endOfName <= 0)
        return std::nullopt;
    ContentLine result{.name = line.first(endOfName), .parameters = {}, .value = {}};
    const QByteArrayView rest = line.sliced(endOfName);
    const qsizetype colon = unquoted(rest, ':', ':');
    if (colon < 0)
        return std::nullopt;
    if (colon > 0)
        result.parameters = rest.first(colon).sliced(1);
    result.value = rest.sliced(colon + 1);
    return result;
}
} // namespace

bool ContentLine::is(QByteArrayView other) const
{
    return name.size() == other.size() && name.compare(other, Qt::CaseInsensitive) == 0;
}

std::optional<QByteArrayView> ContentLine::parameter(QByteArrayView wanted) const
{
    QByteArrayView rest = parameters;
    while (!rest.isEmpty()) {
        const qsizetype end = unquoted(rest, ';', ';');
        const QByteArrayView one = end < 0 ? rest : rest.first(end);
        rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
        const qsizetype equals = one.indexOf('=');
        if (equals == wanted.size() && one.first(equals).compare(wanted, Qt::CaseInsensitive) == 0)
            return withoutQuotes(one.sliced(equals + 1));
    }
    return std::nullopt;
}

std::optional<ContentLine> ContentLines::next()
{
    while (!m_rest.isEmpty()) {
        const QByteArrayView line = takeUnfolded();
        if (line.size() > longestLine)
            continue;
        if (const auto parsed = parse(line))
            return parsed;
    }
    return std::nullopt;
}

/// Returns the text up to the next line ending and skips the line ending.
QByteArrayView ContentLines::takePiece()
{
    const void *end = std::memchr(m_rest.data(), '\n', std::size_t(m_rest.size()));
    const qsizetype size = end ? static_cast<const char *>(end) - m_rest.data() : m_rest.size();
    QByteArrayView piece = m_rest.first(size);
    m_rest = m_rest.sliced(std::min(size + 1, m_rest.size()));
    if (piece.endsWith('\r'))
        piece.chop(1);
    return piece;
}

bool ContentLines::continues() const
{
    return !m_rest.isEmpty() && (m_rest.front() == ' ' || m_rest.front() == '\t');
}

QByteArrayView ContentLines::takeUnfolded()
{
    const QByteArrayView first = takePiece();
    if (!continues())
        return first;
    m_unfolded.resize(0);
    m_unfolded.append(first);
    while (continues()) {
        const QByteArrayView piece = takePiece().sliced(1);
        // An embedded picture may be folded into many lines: it is skipped, not kept.
        if (m_unfolded.size() <= longestLine)
            m_unfolded.append(piece);
    }
    return m_unfolded;
}
