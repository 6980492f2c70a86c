#pragma once

#include "Models/PelkoDocument.h"

/// Returns the documents of a space, newest first. Documents with the same creation time keep their order.
QList<PelkoDocument> newestFirst(const QList<PelkoDocument> &documents, Space space);

/// Returns the id of the newest document, or std::nullopt if the space is empty.
std::optional<QUuid> newestOf(const QList<PelkoDocument> &documents, Space space);
