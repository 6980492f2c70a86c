#pragma once

#include "Models/PelkoDocument.h"

/// Reads the whole text of "data.json". Strict, and all or nothing: a missing key, a wrong type, an unknown
/// space or kind of block, a malformed UUID or base64, or anything that is not JSON in UTF-8 is an error.
/// Unknown keys are skipped; the last one of duplicate keys counts; null is as good as absent where a value
/// may be absent; a byte order mark before the text is allowed.
///
/// The bytes are freed while the documents are built, so the peak memory is little more than the larger of
/// the two; pass the only copy of a large file. Returns std::nullopt on any error.
std::optional<QList<PelkoDocument>> readDocuments(QByteArray json);
