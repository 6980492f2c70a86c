#include "Editor/SoftBreaks.h"

#include <algorithm>

namespace
{
constexpr qsizetype paragraph = 4'000;

constexpr qsizetype longWord = 2'000;

/// Returns the space nearest to the wanted end of a paragraph that begins at `from`, or -1 if there is none
/// before `to`.
qsizetype spaceIn(const QString &text, qsizetype from, qsizetype to)
{
    const qsizetype before = text.lastIndexOf(u' ', from + paragraph);
    const qsizetype space = before >= from ? before : text.indexOf(u' ', from + paragraph);
    return space < to ? space : -1;
}

/// Returns whether a line can break at this character; it can at every ideograph.
bool endsWord(QChar character)
{
    constexpr char16_t firstIdeograph = 0x2e80;
    return character.isSpace() || character == u'-' || character.unicode() >= firstIdeograph;
}
} // namespace

void SoftBreaks::reset(const QString &text)
{
    m_places.clear();
    if (isLong(text))
        breakLines(text, 0, text.size());
}

void SoftBreaks::follow(const TextChange &change, const QString &text)
{
    if (!isLong(text)) {
        m_places.clear();
        return;
    }
    shift(change);
    const bool isNew = m_places.isEmpty();
    breakLines(text, isNew ? 0 : change.position,
               isNew ? text.size() : change.position + change.inserted.size());
}

void SoftBreaks::shift(const TextChange &change)
{
    const qsizetype end = change.position + change.removed.size();
    const auto first = std::ranges::lower_bound(m_places, change.position);
    const auto last = std::ranges::lower_bound(m_places, end);
    const qsizetype growth = change.inserted.size() - change.removed.size();
    for (auto place = m_places.erase(first, last); place != m_places.end(); ++place)
        *place += growth;
}

void SoftBreaks::breakLines(const QString &text, qsizetype from, qsizetype to)
{
    // Includes the paragraphs that contain both ends.
    auto next = std::ranges::lower_bound(m_places, from);
    const qsizetype before = next == m_places.begin() ? 0 : *std::prev(next) + 1;
    qsizetype start = from == 0 ? 0 : std::max(before, text.lastIndexOf(u'\n', from - 1) + 1);
    QList<qsizetype> added;
    while (start <= to) {
        next = std::ranges::lower_bound(m_places, start);
        const qsizetype line = text.indexOf(u'\n', start);
        const qsizetype end =
            std::min(line < 0 ? text.size() : line, next == m_places.end() ? text.size() : *next);
        const qsizetype space = end - start > 2 * paragraph ? spaceIn(text, start, end) : -1;
        if (space >= 0)
            added.append(space);
        start = (space >= 0 ? space : end) + 1;
    }
    m_places.append(added);
    std::ranges::sort(m_places);
}

bool SoftBreaks::hasLongWord(const QString &text)
{
    qsizetype length = 0;
    for (const QChar character : text) {
        length = endsWord(character) ? 0 : length + 1;
        if (length > longWord)
            return true;
    }
    return false;
}

QString SoftBreaks::applied(QString text) const
{
    for (const qsizetype place : m_places) {
        if (place < text.size())
            text[place] = u'\n';
    }
    return text;
}
