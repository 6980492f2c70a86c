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
    /// Lists of documents are sorted by it.
    Timestamp createdAt = 0;
    /// Absent until the first edit.
    std::optional<Timestamp> updatedAt;
    std::optional<bool> isPinned;
    std::optional<bool> isArchived;

    /// Null id and no blocks, for readers that set them. Generating a UUID costs a system call.
    PelkoDocument() = default;
    /// A new page with an id of its own: an empty heading, then an empty body block.
    PelkoDocument(Space space, Timestamp createdAt);

    /// Returns the title of the first banner that has one, else the first heading; std::nullopt if both are
    /// blank.
    std::optional<QString> writtenTitle() const;
    /// Returns the written title, or "Untitled" in the user's language.
    QString title() const;
    /// Returns the number of runs of characters between white space in all blocks.
    qint64 wordCount() const;
    /// Returns the time since the last edit, such as "5m ago". Dates are formatted for `locale`.
    QString relativeDate(Timestamp now, const QTimeZone &zone, const QLocale &locale) const;

    bool operator==(const PelkoDocument &) const = default;
};

/// Returns whether `document` is unchanged since `kept` was copied from it, without comparing the blocks. A
/// list detaches when it is changed, so a list that still shares its data with the copy is unchanged.
bool isUnchanged(const PelkoDocument &document, const PelkoDocument &kept);
