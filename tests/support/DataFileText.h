#pragma once

#include "Store/DocumentReader.h"
#include "Store/DocumentWriter.h"
#include "support/MemorySink.h"

/// Returns the text that `writer` produces for `documents`.
inline QByteArray dataFileText(DocumentWriter &writer, const QList<PelkoDocument> &documents)
{
    MemorySink sink;
    [[maybe_unused]] const auto error = writer.write(documents, sink);
    Q_ASSERT(!error);
    return sink.bytes;
}

/// Returns the text of a data file with `documents`.
inline QByteArray dataFileText(const QList<PelkoDocument> &documents)
{
    DocumentWriter writer;
    return dataFileText(writer, documents);
}
