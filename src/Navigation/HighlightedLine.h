#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

class SearchWords;

/// A range of a line, in UTF-16 units.
struct HighlightRange {
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const HighlightRange &) const = default;
};

/// A line of text with highlighted ranges.
struct HighlightedLine {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text CONSTANT)

public:
    QString text;
    /// Sorted, and not adjacent.
    QList<HighlightRange> marks;

    bool operator==(const HighlightedLine &) const = default;
};

/// Returns the ranges of `text` in which the words occur. If a word occurs at the start of words, its other
/// occurrences are not included: a short word would highlight most of the page.
QList<HighlightRange> highlightRanges(QStringView text, const SearchWords &words);

/// Returns a line of a length that fits a row, from the text around `place`, with the words highlighted and
/// "…" where it was cut.
HighlightedLine lineAround(QStringView text, qsizetype place, const SearchWords &words);
