#pragma once

#include "Models/PelkoDocument.h"

/// The documents of a space, newest first. Those made in the same instant keep their order.
QList<PelkoDocument> newestFirst(const QList<PelkoDocument> &documents, Space space);

/// Returns the id of the newest document, or std::nullopt if the space is empty.
std::optional<QUuid> newestOf(const QList<PelkoDocument> &documents, Space space);
