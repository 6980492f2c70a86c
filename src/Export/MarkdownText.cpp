#include "Export/MarkdownText.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace
{
bool isPunctuation(QChar c)
{
    return c.unicode() < 0x80 && c.isPrint() && !c.isSpace() && !c.isLetterOrNumber();
}

bool isStripped(QChar c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

QString spelledOut(QChar c)
{
    return u"&#%1;"_s.arg(c.unicode());
}

/// One line of text and how a CommonMark parser would interpret it.
class Line
{
public:
    explicit Line(QStringView text) : m_text(text) {}

    /// Escapes the line, and in any case the character at `markAtStart`, if given.
    QString escaped(qsizetype markAtStart = -1) const
    {
        QString result;
        result.reserve(m_text.size() + m_text.size() / 8);
        for (qsizetype at = 0; at < m_text.size(); ++at) {
            if (isSpelledOut(at)) {
                result += spelledOut(m_text[at]);
                continue;
            }
            if (at == markAtStart || isMark(at))
                result += u'\\';
            result += m_text[at].isNull() ? QChar(QChar::ReplacementCharacter) : m_text[at];
        }
        return result;
    }

private:
    bool isSpelledOut(qsizetype at) const
    {
        const bool isAtEdge = at == 0 || at == m_text.size() - 1;
        return m_text[at] == u'\r' || (isAtEdge && isStripped(m_text[at]));
    }

    bool isMark(qsizetype at) const
    {
        switch (m_text[at].unicode()) {
        case u'`':
        case u'[':
            return true;
        case u'\\':
            return at == m_text.size() - 1 || isPunctuation(m_text[at + 1]) || isSpelledOut(at + 1);
        case u'<':
            return opensTag(at);
        case u'&':
            return isEntity(at);
        case u'*':
        case u'_':
            return emphasises(at);
        case u'~':
            return charAt(at - 1) == u'~' || charAt(at + 1) == u'~';
        default:
            return false;
        }
    }

    /// Returns a null character beyond the ends.
    QChar charAt(qsizetype at) const { return at >= 0 && at < m_text.size() ? m_text[at] : QChar(); }

    bool opensTag(qsizetype at) const
    {
        const QChar next = charAt(at + 1);
        return next.isLetter() || next == u'/' || next == u'!' || next == u'?';
    }

    bool isEntity(qsizetype at) const
    {
        qsizetype end = at + 1;
        while (charAt(end).isLetterOrNumber() || charAt(end) == u'#')
            ++end;
        return end > at + 1 && charAt(end) == u';';
    }

    /// Stars or underscores between spaces do not emphasise, and neither do underscores within a word.
    bool emphasises(qsizetype at) const
    {
        const QChar mark = m_text[at];
        qsizetype first = at;
        qsizetype last = at;
        while (charAt(first - 1) == mark)
            --first;
        while (charAt(last + 1) == mark)
            ++last;
        if (mark == u'_' && charAt(first - 1).isLetterOrNumber() && charAt(last + 1).isLetterOrNumber())
            return false;
        return !isInnerSpace(first - 1) || !isInnerSpace(last + 1);
    }

    /// Spaces at the edges are written as entities, inner ones stay.
    bool isInnerSpace(qsizetype at) const { return at > 0 && at < m_text.size() - 1 && m_text[at] == u' '; }

    QStringView m_text;
};

/// Returns the position of the mark that would make the line a heading, list entry, quote, rule or underline;
/// -1 for none.
qsizetype markAtStart(const QString &line)
{
    static const QRegularExpression mark(uR"(^(?:#{1,6}(?=\s|\z)|>|[-+](?=\s|\z)|[-=|:](?=[-=|:\s]*\z)))"_s);
    static const QRegularExpression number(uR"(^[0-9]{1,9}(?=[.)](?:\s|\z)))"_s);
    if (mark.match(line).hasMatch())
        return 0;
    const QRegularExpressionMatch numbered = number.match(line);
    return numbered.hasMatch() ? numbered.capturedEnd() : -1;
}

qsizetype breaksAtStart(QStringView text)
{
    qsizetype count = 0;
    while (count < text.size() && text[count] == u'\n')
        ++count;
    return count;
}

qsizetype breaksAtEnd(QStringView text)
{
    qsizetype count = 0;
    while (count < text.size() && text[text.size() - 1 - count] == u'\n')
        ++count;
    return count;
}
} // namespace

QString MarkdownText::escaped(const QString &text, Place place, const QString &indent)
{
    const qsizetype before = breaksAtStart(text);
    const QStringView rest = QStringView(text).sliced(before);
    const qsizetype after = breaksAtEnd(rest);
    QStringList lines;
    for (const QString &line : rest.chopped(after).toString().split(u'\n')) {
        const bool isBehindMark = lines.isEmpty() && place == Place::marked;
        lines << Line(line).escaped(isBehindMark ? -1 : markAtStart(line));
    }
    const QString lineBreak = spelledOut(u'\n');
    return lineBreak.repeated(before) + lines.join("\\\n"_L1 + indent) + lineBreak.repeated(after);
}
