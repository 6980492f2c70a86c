#include "Editor/TextChange.h"

#include <algorithm>

TextChange TextChange::between(const QString &before, const QString &after, qsizetype caret)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    const qsizetype growth = std::max<qsizetype>(after.size() - before.size(), 0);
    const qsizetype limit = std::clamp<qsizetype>(caret - growth, 0, shorter);
    qsizetype start = 0;
    while (start < limit && before.at(start) == after.at(start))
        ++start;
    qsizetype tail = 0;
    while (tail < shorter - start && before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail))
        ++tail;
    return {.position = start,
            .removed = before.sliced(start, before.size() - start - tail),
            .inserted = after.sliced(start, after.size() - start - tail)};
}
