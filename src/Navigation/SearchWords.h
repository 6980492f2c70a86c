#pragma once

#include <QStringMatcher>

#include <vector>

/// How a search word matches: within another word, at the beginning of one, or as a whole word.
enum class Fit { none, within, beginning, whole };

/// A match of a word in a folded text.
struct WordMatch {
    Fit fit = Fit::none;
    qsizetype place = -1;
};

/// One search word, folded.
class SearchWord
{
public:
    explicit SearchWord(const QString &folded) : m_word(folded), m_matcher(folded) {}

    qsizetype length() const { return m_word.size(); }
    /// Returns the first match at or after `from` in the folded text.
    WordMatch next(QStringView folded, qsizetype from) const;
    /// Returns the first of the best matches.
    WordMatch best(QStringView folded) const;

private:
    Fit fitAt(QStringView folded, qsizetype place) const;

    QString m_word;
    QStringMatcher m_matcher;
};

/// The words of a search. A page must contain all of them.
class SearchWords
{
public:
    SearchWords() = default;
    explicit SearchWords(QStringView typed);

    /// In the order in which they were typed; empty if the query has no words.
    const std::vector<SearchWord> &all() const { return m_words; }
    /// All words in a row, if there are several. It is optional and improves the rank.
    const std::optional<SearchWord> &phrase() const { return m_phrase; }

private:
    std::vector<SearchWord> m_words;
    std::optional<SearchWord> m_phrase;
};
