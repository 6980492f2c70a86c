#pragma once

#include "Models/Block.h"
#include "Models/Space.h"
#include "Models/Timestamp.h"

#include <QLocale>
#include <QTimeZone>

/// One short page: a value. Copies share their blocks until one of them is changed.
struct PelkoDocument {
    QUuid id;
    Space space = Space::work;
    QList<Block> blocks;
    /// Also what lists of documents are sorted by.
    Timestamp createdAt = 0;
    /// Absent until the first edit.
    std::optional<Timestamp> updatedAt;
    std::optional<bool> isPinned;
    std::optional<bool> isArchived;

    /// Null id and no blocks, for readers that fill it in. Generating a UUID costs a system call.
    PelkoDocument() = default;
    /// A new page with an id of its own: an empty heading, then an empty body block.
    PelkoDocument(Space space, Timestamp createdAt);

    /// The title of the first banner that has one, else the first heading; std::nullopt when both are blank.
    std::optional<QString> writtenTitle() const;
    /// The written title, else "Untitled" in the user's language.
    QString title() const;
    /// Runs of characters between white space, over all blocks.
    qint64 wordCount() const;
    /// How long ago the page was last edited ("5m ago"), in words the reader of `locale` knows.
    QString relativeDate(Timestamp now, const QTimeZone &zone, const QLocale &locale) const;

    bool operator==(const PelkoDocument &) const = default;
};

/// Returns whether `document` is unchanged since `kept` was copied from it, without comparing the blocks. A
/// list detaches when it is changed, so a list that still shares its data with the copy is unchanged.
bool isUnchanged(const PelkoDocument &document, const PelkoDocument &kept);
