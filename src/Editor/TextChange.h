#pragma once

#include <QString>

#include <limits>

/// The difference between two texts: one range that was replaced by another, in UTF-16 units.
struct TextChange {
    qsizetype position = 0;
    QString removed;
    QString inserted;

    /// `caret` is the position of the caret in `after`. It decides which one of several equal letters was
    /// typed or deleted; without it, it is the last one.
    static TextChange between(const QString &before, const QString &after,
                              qsizetype caret = std::numeric_limits<qsizetype>::max());

    QString applied(QString text) const { return text.replace(position, removed.size(), inserted); }
    QString reverted(QString text) const { return text.replace(position, inserted.size(), removed); }

    bool operator==(const TextChange &) const = default;
};
