#pragma once

#include "Models/PelkoDocument.h"

/// One row of the list of recent sparks.
struct RecentSpark {
    QUuid id;
    /// The beginning of the text, as much as a card can show.
    QString text;
    bool isNew = false;

    bool operator==(const RecentSpark &) const = default;
};

struct RecentSparks {
    /// Newest first.
    QList<RecentSpark> cards;
    /// The number of all sparks, with or without a card.
    qsizetype total = 0;
};

/// Returns the text of a spark, which is its first block.
QString sparkText(const PelkoDocument &spark);

/// Returns the newest `limit` documents of the ideas space, in the order of AppState::sparks, without sorting
/// all documents.
RecentSparks recentSparks(const QList<PelkoDocument> &documents, qsizetype limit,
                          const std::optional<QUuid> &newest);
