#pragma once

#include "Models/Block.h"

/// A page without ids, for the model: two pages are equal if a reader cannot tell them apart.
struct PlainEntry {
    QString text;
    bool done = false;

    bool operator==(const PlainEntry &) const = default;
};

struct PlainBlock {
    BlockType kind = BlockType::textSmall;
    QString text = {};
    std::optional<QList<PlainEntry>> entries = std::nullopt;
    /// Identifies the picture; empty without one.
    QByteArray picture = {};
    std::optional<bool> isFullWidth = std::nullopt;
    std::optional<QString> title = std::nullopt;

    bool operator==(const PlainBlock &) const = default;
};

using PlainPage = QList<PlainBlock>;

/// Returns the identification of a picture with these bytes.
QByteArray pictureMark(const QByteArray &bytes);

PlainPage plainPage(const QList<Block> &blocks);

/// Returns one line per block, with invisible characters escaped.
QStringList linesOf(const PlainPage &page);

/// Returns the text in double quotes, with invisible characters escaped.
QString quoted(const QString &text);

/// Returns the lines that differ: "-" before expected ones, "+" before those found.
QString difference(const PlainPage &expected, const PlainPage &found);
