#include "Navigation/PageSearch.h"

#include "Navigation/FoldedText.h"
#include "Navigation/PageTexts.h"

#include <algorithm>
#include <numeric>
#include <ranges>

namespace
{
constexpr int aboveText = int(Fit::whole); // any fit in a title ranks above the best one in a text

/// Searches one page after another for the same words.
class Reader
{
public:
    explicit Reader(const SearchWords &words) : m_words(words) {}

    /// Returns std::nullopt if a word is missing.
    std::optional<PageHit> read(const PelkoDocument &page)
    {
        m_title = isSpark(page) ? QString() : page.title();
        readTitle();
        readTexts(page);
        const auto isMissing = [](int rank) { return rank == 0; };
        const std::span required(m_ranks.data(), m_words.all().size());
        if (std::ranges::any_of(required, isMissing))
            return std::nullopt;
        m_hit.rank = std::accumulate(m_ranks.begin(), m_ranks.end(), 0);
        return m_hit;
    }

private:
    /// The number of words, plus one if there is a phrase.
    std::size_t count() const { return m_words.all().size() + m_words.phrase().has_value(); }
    const SearchWord &word(std::size_t index) const
    {
        return index < m_words.all().size() ? m_words.all()[index] : *m_words.phrase();
    }

    void readTitle()
    {
        m_hit = {};
        m_ranks.assign(count(), 0);
        m_inTexts.assign(count(), Fit::none);
        FoldedText::fold(m_title, m_folded);
        for (std::size_t index = 0; index < count(); ++index) {
            const Fit fit = word(index).best(m_folded).fit;
            m_ranks[index] = fit == Fit::none ? 0 : aboveText + int(fit);
        }
    }

    void readTexts(const PelkoDocument &page)
    {
        qsizetype number = 0;
        m_best = 0;
        visitTexts(page, [&](const QString &text) {
            if (text != m_title)
                readText(text, number);
            ++number;
            return std::ranges::any_of(m_inTexts, [](Fit fit) { return fit != Fit::whole; });
        });
    }

    void readText(const QString &text, qsizetype number)
    {
        FoldedText::fold(text, m_folded);
        for (std::size_t index = 0; index < count(); ++index) {
            if (m_inTexts[index] == Fit::whole)
                continue;
            const WordMatch found = word(index).best(m_folded);
            if (found.fit <= m_inTexts[index])
                continue;
            m_inTexts[index] = found.fit;
            m_ranks[index] = std::max(m_ranks[index], int(found.fit));
            const bool isPhrase = index == m_words.all().size();
            const int worth = int(found.fit) + (isPhrase ? aboveText : 0);
            if (worth > m_best) {
                m_best = worth;
                m_hit.text = number;
                m_hit.place = found.place;
            }
        }
    }

    const SearchWords &m_words;
    PageHit m_hit;
    std::vector<int> m_ranks;
    std::vector<Fit> m_inTexts;
    int m_best = 0;
    QString m_title;
    QString m_folded;
};

Timestamp writtenAt(const PelkoDocument &page)
{
    return page.updatedAt.value_or(page.createdAt);
}

} // namespace

PageHits findPages(const QList<PelkoDocument> &documents, const SearchWords &words, qsizetype limit)
{
    PageHits hits;
    if (words.all().empty())
        return hits;
    Reader reader(words);
    for (qsizetype page = 0; page < documents.size(); ++page) {
        if (std::optional<PageHit> hit = reader.read(documents.at(page))) {
            hit->page = page;
            hits.best.append(*hit);
        }
    }
    hits.total = hits.best.size();
    const auto isBetter = [&documents](const PageHit &one, const PageHit &other) {
        if (one.rank != other.rank)
            return one.rank > other.rank;
        const Timestamp oneTime = writtenAt(documents.at(one.page));
        const Timestamp otherTime = writtenAt(documents.at(other.page));
        return oneTime != otherTime ? oneTime > otherTime : one.page < other.page;
    };
    const auto end = hits.best.begin() + std::min(limit, hits.total);
    std::partial_sort(hits.best.begin(), end, hits.best.end(), isBetter);
    hits.best.erase(end, hits.best.end());
    return hits;
}
