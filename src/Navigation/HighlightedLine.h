#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

class SearchWords;

/// A part of a line, in UTF-16 units.
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
    /// In their order, and apart from each other.
    QList<HighlightRange> marks;

    bool operator==(const HighlightedLine &) const = default;
};

/// The parts of `text` in which the words stand. Where a word stands at the beginning of some words, those
/// within others are left alone: of a short word the page would be full.
QList<HighlightRange> highlightRanges(QStringView text, const SearchWords &words);

/// So much of a text as fits into a row, in one line, around the place, with the words marked and "…" where
/// it was cut.
HighlightedLine lineAround(QStringView text, qsizetype place, const SearchWords &words);
