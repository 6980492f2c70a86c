#pragma once

#include "Models/PelkoDocument.h"

/// One row of the list of recent sparks.
struct RecentSpark {
    QUuid id;
    /// The beginning of its text, as much as a card can show.
    QString text;
    bool isNew = false;

    bool operator==(const RecentSpark &) const = default;
};

struct RecentSparks {
    /// Newest first.
    QList<RecentSpark> cards;
    /// Of all sparks, not only those on cards.
    qsizetype total = 0;
};

/// Returns the text of a spark: its first block.
QString sparkText(const PelkoDocument &spark);

/// The newest `limit` documents of the ideas space, in the order of AppState::sparks, found without sorting
/// all documents.
RecentSparks recentSparks(const QList<PelkoDocument> &documents, qsizetype limit,
                          const std::optional<QUuid> &newest);
