#pragma once

#include "Editor/TextChange.h"

#include <QList>

/// Where the view of a long text breaks a long line into paragraphs of some thousand characters, which a text
/// field can lay out one by one. A break stands in the place of a space, so positions are the same in both
/// texts; the stored text has none of them. A line without spaces is not broken.
class SoftBreaks
{
public:
    /// A text of more than this is long. Others have no breaks.
    static constexpr qsizetype longText = 50'000;

    static bool isLong(const QString &text) { return text.size() > longText; }

    /// Whether there is a word of thousands of characters. To wrap one at its end or anywhere takes a field
    /// time that grows with the square of its length.
    static bool hasLongWord(const QString &text);

    /// Starts afresh.
    void reset(const QString &text);
    /// The text has changed to `text`. Breaks outside the change stay.
    void follow(const TextChange &change, const QString &text);

    /// The text, or the beginning of it, with a line feed in the place of each of these spaces.
    QString applied(QString text) const;
    const QList<qsizetype> &places() const { return m_places; }

private:
    void shift(const TextChange &change);
    /// Breaks the lines that begin between two places of the text.
    void breakLines(const QString &text, qsizetype from, qsizetype to);

    QList<qsizetype> m_places; // ascending
};
