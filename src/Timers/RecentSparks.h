#pragma once

#include "Models/PelkoDocument.h"

/// One spark as the panel shows it.
struct RecentSpark {
    QUuid id;
    /// The beginning of it, enough for the lines a card has: somebody may paste a whole book.
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

/// What a spark says: its first block.
QString sparkText(const PelkoDocument &spark);

/// The newest `limit` documents of the ideas space, in the order of AppState::sparks, found without sorting
/// the others: there may be ten thousand.
RecentSparks recentSparks(const QList<PelkoDocument> &documents, qsizetype limit,
                          const std::optional<QUuid> &newest);
