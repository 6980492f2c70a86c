#pragma once

#include "Store/DocumentReader.h"
#include "Store/DocumentWriter.h"
#include "support/MemorySink.h"

/// The text of a data file that holds `documents`.
inline QByteArray dataFileText(const QList<PelkoDocument> &documents)
{
    MemorySink sink;
    DocumentWriter writer;
    const auto error = writer.write(documents, sink);
    Q_ASSERT(!error);
    return sink.bytes;
}
