#pragma once

#include "Store/DocumentReader.h"
#include "Store/DocumentWriter.h"
#include "support/MemorySink.h"

/// The text that `writer` makes of `documents`.
inline QByteArray dataFileText(DocumentWriter &writer, const QList<PelkoDocument> &documents)
{
    MemorySink sink;
    [[maybe_unused]] const auto error = writer.write(documents, sink);
    Q_ASSERT(!error);
    return sink.bytes;
}

/// The text of a data file that holds `documents`.
inline QByteArray dataFileText(const QList<PelkoDocument> &documents)
{
    DocumentWriter writer;
    return dataFileText(writer, documents);
}
