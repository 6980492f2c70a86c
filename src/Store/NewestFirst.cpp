#include "Store/NewestFirst.h"

#include <algorithm>
#include <vector>

QList<PelkoDocument> newestFirst(const QList<PelkoDocument> &documents, Space space)
{
    std::vector<const PelkoDocument *> found; // sorting ten thousand pointers takes less than a frame
    for (const PelkoDocument &document : documents) {
        if (document.space == space)
            found.push_back(&document);
    }
    std::ranges::stable_sort(found, std::ranges::greater(), &PelkoDocument::createdAt);
    QList<PelkoDocument> newest;
    newest.reserve(std::ssize(found));
    for (const PelkoDocument *document : found)
        newest.append(*document);
    return newest;
}

std::optional<QUuid> newestOf(const QList<PelkoDocument> &documents, Space space)
{
    const PelkoDocument *newest = nullptr;
    for (const PelkoDocument &document : documents) {
        if (document.space == space && (!newest || document.createdAt > newest->createdAt))
            newest = &document;
    }
    return newest ? std::optional(newest->id) : std::nullopt;
}
