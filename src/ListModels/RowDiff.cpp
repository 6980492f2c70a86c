#include "ListModels/RowDiff.h"

namespace
{

using Rows = std::vector<qsizetype>;

qsizetype position(const Rows &rows, qsizetype value)
{
    return std::ranges::find(rows, value) - rows.begin();
}

std::vector<RowChange> removals(const Rows &newRows)
{
    std::vector<RowChange> changes;
    for (auto row = static_cast<qsizetype>(newRows.size()) - 1; row >= 0; --row) {
        if (newRows[static_cast<std::size_t>(row)] >= 0)
            continue;
        if (!changes.empty() && changes.back().row == row + 1) {
            --changes.back().row;
            ++changes.back().count;
        } else {
            changes.push_back({.kind = RowChange::Kind::remove, .row = row});
        }
    }
    return changes;
}

/// Returns the values of a longest increasing subsequence: the rows that need not move.
Rows longestRisingRun(const Rows &values)
{
    Rows tails; // tails[n] is the last value of the best subsequence of n + 1 values so far
    Rows lengths;
    for (const qsizetype value : values) {
        const auto place = std::ranges::lower_bound(tails, value);
        lengths.push_back(place - tails.begin());
        if (place == tails.end())
            tails.push_back(value);
        else
            *place = value;
    }
    Rows run(tails.size());
    auto wanted = static_cast<qsizetype>(tails.size()) - 1;
    for (std::size_t i = values.size(); i-- > 0 && wanted >= 0;) {
        if (lengths[i] == wanted)
            run[static_cast<std::size_t>(wanted--)] = values[i];
    }
    return run;
}

void appendMoves(std::vector<RowChange> &changes, Rows rows)
{
    const Rows staying = longestRisingRun(rows);
    Rows sorted = rows;
    std::ranges::sort(sorted);
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (std::ranges::binary_search(staying, sorted[i]))
            continue;
        const qsizetype from = position(rows, sorted[i]);
        rows.erase(rows.begin() + from);
        const qsizetype to = i == 0 ? 0 : position(rows, sorted[i - 1]) + 1;
        rows.insert(rows.begin() + to, sorted[i]);
        changes.push_back({.kind = RowChange::Kind::move, .row = from, .destination = to});
    }
}

void appendInsertions(std::vector<RowChange> &changes, const Rows &present, qsizetype newCount)
{
    auto next = present.begin();
    for (qsizetype row = 0; row < newCount; ++row) {
        if (next != present.end() && *next == row) {
            ++next;
            continue;
        }
        const bool continues = !changes.empty() && changes.back().kind == RowChange::Kind::insert &&
                               changes.back().row + changes.back().count == row;
        if (continues)
            ++changes.back().count;
        else
            changes.push_back({.kind = RowChange::Kind::insert, .row = row});
    }
}

} // namespace

std::vector<RowChange> RowDiff::steps(const std::vector<qsizetype> &newRows, qsizetype newCount)
{
    std::vector<RowChange> changes = removals(newRows);
    Rows present = newRows;
    std::erase(present, -1);
    if (!std::ranges::is_sorted(present))
        appendMoves(changes, present);
    std::ranges::sort(present);
    appendInsertions(changes, present, newCount);
    return changes;
}
