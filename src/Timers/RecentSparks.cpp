#include "Timers/RecentSparks.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr qsizetype shownCharacters = 300;

/// Sparks with the same creation time keep the order of the list.
bool comesFirst(const PelkoDocument *left, const PelkoDocument *right)
{
    return left->createdAt != right->createdAt ? left->createdAt > right->createdAt : left < right;
}

RecentSpark card(const PelkoDocument &spark, bool isNew)
{
    return {.id = spark.id, .text = sparkText(spark).left(shownCharacters), .isNew = isNew};
}
} // namespace

QString sparkText(const PelkoDocument &spark)
{
    return spark.blocks.isEmpty() ? QString() : spark.blocks.constFirst().content;
}

RecentSparks recentSparks(const QList<PelkoDocument> &documents, qsizetype limit,
                          const std::optional<QUuid> &newest)
{
    std::vector<const PelkoDocument *> sparks;
    for (const PelkoDocument &document : documents) {
        if (document.space == Space::ideas)
            sparks.push_back(&document);
    }
    const auto shown = sparks.begin() + std::min<qsizetype>(limit, std::ssize(sparks));
    std::partial_sort(sparks.begin(), shown, sparks.end(), comesFirst);
    RecentSparks recent{.cards = {}, .total = std::ssize(sparks)};
    std::transform(sparks.begin(), shown, std::back_inserter(recent.cards),
                   [&newest](const PelkoDocument *spark) { return card(*spark, spark->id == newest); });
    return recent;
}
