#pragma once

#include <QString>

#include <limits>

/// What differs between two texts: one stretch that was replaced by another. All are counted in UTF-16 units.
struct TextChange {
    qsizetype position = 0;
    QString removed;
    QString inserted;

    /// `caret` is where the caret stands in `after`. It settles which of several equal letters was typed or
    /// deleted; without it, the last of them.
    static TextChange between(const QString &before, const QString &after,
                              qsizetype caret = std::numeric_limits<qsizetype>::max());

    QString applied(QString text) const { return text.replace(position, removed.size(), inserted); }
    QString reverted(QString text) const { return text.replace(position, inserted.size(), removed); }

    bool operator==(const TextChange &) const = default;
};
