#pragma once

#include <QHash>
#include <QList>

#include <algorithm>
#include <optional>
#include <vector>

/// One step of a diff. The steps are valid when applied in their order.
struct RowChange {
    enum class Kind { remove, move, insert };

    Kind kind;
    qsizetype row;
    /// The number of rows removed or inserted from `row` on; 1 for a move.
    qsizetype count = 1;
    /// The row of a moved row after the step.
    qsizetype destination = -1;

    bool operator==(const RowChange &) const = default;
};

namespace RowDiff
{

/// Returns the steps when row i of the old list becomes row `newRows[i]` of the new one, or -1 if it is
/// removed: removals from the end, then as few moves as possible, then insertions from the start until there
/// are `newCount` rows.
std::vector<RowChange> steps(const std::vector<qsizetype> &newRows, qsizetype newCount);

/// Returns the steps from `before` to `after`. std::nullopt if an id occurs twice in one list: the list must
/// then be replaced as a whole.
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
