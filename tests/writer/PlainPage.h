#pragma once

#include "Models/Block.h"

/// A page without ids, as the random writer's model keeps it: two pages are equal where a reader could not
/// tell them apart.
struct PlainEntry {
    QString text;
    bool done = false;

    bool operator==(const PlainEntry &) const = default;
};

struct PlainBlock {
    BlockType kind = BlockType::textSmall;
    QString text = {};
    std::optional<QList<PlainEntry>> entries = std::nullopt;
    /// Tells pictures apart; empty without one.
    QByteArray picture = {};
    std::optional<bool> isFullWidth = std::nullopt;
    std::optional<QString> title = std::nullopt;

    bool operator==(const PlainBlock &) const = default;
};

using PlainPage = QList<PlainBlock>;

/// What stands for a picture of these bytes.
QByteArray pictureMark(const QByteArray &bytes);

PlainPage plainPage(const QList<Block> &blocks);

/// One line a block, with characters that cannot be seen written as escapes.
QStringList linesOf(const PlainPage &page);

/// The text with characters that cannot be seen written as escapes, in double quotes.
QString quoted(const QString &text);

/// The lines in which the pages differ: "-" before those expected, "+" before those found.
QString difference(const PlainPage &expected, const PlainPage &found);
