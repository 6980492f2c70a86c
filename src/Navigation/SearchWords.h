#pragma once

#include <QStringMatcher>

#include <vector>

/// How well a word fits where it was found: within another, at the beginning of one, or as a whole one.
enum class Fit { none, within, beginning, whole };

/// Where a word was found in a folded text.
struct WordMatch {
    Fit fit = Fit::none;
    qsizetype place = -1;
};

/// One word that is looked for, folded.
class SearchWord
{
public:
    explicit SearchWord(const QString &folded) : m_word(folded), m_matcher(folded) {}

    qsizetype length() const { return m_word.size(); }
    /// The first place from `from` on where it stands in the folded text.
    WordMatch next(QStringView folded, qsizetype from) const;
    /// The first of the places that it fits best.
    WordMatch best(QStringView folded) const;

private:
    Fit fitAt(QStringView folded, qsizetype place) const;

    QString m_word;
    QStringMatcher m_matcher;
};

/// The words somebody typed to find a page. Each of them has to be found.
class SearchWords
{
public:
    SearchWords() = default;
    explicit SearchWords(QStringView typed);

    /// In the order in which they were typed; none when nothing can be found.
    const std::vector<SearchWord> &all() const { return m_words; }
    /// These words one after the other, where there are several: it need not be found, but fits better.
    const std::optional<SearchWord> &phrase() const { return m_phrase; }

private:
    std::vector<SearchWord> m_words;
    std::optional<SearchWord> m_phrase;
};
