#include "support/ManualDocumentFile.h"

#include "support/MemorySink.h"

DocumentFile::Contents ManualDocumentFile::read()
{
    if (readError)
        return FileError{*readError};
    if (!bytes)
        return Missing{};
    return *bytes;
}

std::optional<FileError> ManualDocumentFile::replace(const Producer &produce)
{
    MemorySink sink;
    if (const std::optional<FileError> error = produce(sink))
        return error;
    if (writeError)
        return FileError{*writeError};
    bytes = sink.bytes;
    ++m_writes;
    return std::nullopt;
}
