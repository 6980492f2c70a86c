#pragma once

#include <QHash>
#include <QList>

#include <algorithm>
#include <optional>
#include <vector>

/// One step on the way from one list of rows to another. Steps hold when carried out one after the other.
struct RowChange {
    enum class Kind { remove, move, insert };

    Kind kind;
    qsizetype row;
    /// How many rows are removed or inserted from `row` on; a move takes one.
    qsizetype count = 1;
    /// Where a moved row stands afterwards.
    qsizetype destination = -1;

    bool operator==(const RowChange &) const = default;
};

namespace RowDiff
{

/// The steps between two lists when row i of the old one belongs at `newRows[i]` of the new one, -1 for a
/// row that is gone: removals from the end backwards, then as few moves as possible, then insertions from
/// the start on until there are `newCount` rows.
std::vector<RowChange> steps(const std::vector<qsizetype> &newRows, qsizetype newCount);

/// The steps from `before` to `after`. Nothing when an id stands twice in one of them: rows cannot be told
/// apart then, and the list has to be shown anew.
template <typename Id>
std::optional<std::vector<RowChange>> between(const QList<Id> &before, const QList<Id> &after)
{
    if (before == after)
        return std::vector<RowChange>{};
    QHash<Id, qsizetype> rowOf;
    rowOf.reserve(after.size());
    for (qsizetype row = 0; row < after.size(); ++row)
        rowOf.insert(after.at(row), row);
    std::vector<qsizetype> newRows;
    newRows.reserve(static_cast<std::size_t>(before.size()));
    for (const Id &id : before)
        newRows.push_back(rowOf.value(id, -1));

    std::vector<qsizetype> found = newRows;
    std::erase(found, -1);
    std::ranges::sort(found);
    const bool beforeRepeats = std::ranges::adjacent_find(found) != found.end();
    if (rowOf.size() != after.size() || beforeRepeats)
        return std::nullopt;
    return steps(newRows, after.size());
}

} // namespace RowDiff
