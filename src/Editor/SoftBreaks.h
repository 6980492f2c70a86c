#pragma once

#include "Editor/TextChange.h"

#include <QList>

/// The places where the view breaks long lines of a long text into paragraphs of some thousand characters,
/// which a text field can lay out separately. A break is shown in place of a space, so positions are valid in
/// both texts; the stored text is not changed. Lines without spaces are not broken.
class SoftBreaks
{
public:
    /// The number of characters above which a text is long. Shorter texts have no breaks.
    static constexpr qsizetype longText = 50'000;

    static bool isLong(const QString &text) { return text.size() > longText; }

    /// Returns whether the text contains a word of thousands of characters. Wrapping it takes a field
    /// quadratic time.
    static bool hasLongWord(const QString &text);

    /// Computes the breaks of another text.
    void reset(const QString &text);
    /// Updates the breaks after a change. Breaks outside the change stay.
    void follow(const TextChange &change, const QString &text);

    /// Returns the text, or a beginning of it, with line feeds in place of these spaces.
    QString applied(QString text) const;
    const QList<qsizetype> &places() const { return m_places; }

private:
    void shift(const TextChange &change);
    /// Breaks the lines that begin in the range of the text.
    void breakLines(const QString &text, qsizetype from, qsizetype to);

    QList<qsizetype> m_places; // ascending
};
