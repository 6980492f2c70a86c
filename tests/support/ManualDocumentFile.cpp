#include "support/ManualDocumentFile.h"

#include "support/MemorySink.h"

#include <utility>

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
    whileWriting();
    MemorySink sink;
    if (const std::optional<FileError> error = produce(sink))
        return error;
    if (writeError)
        return FileError{*writeError};
    bytes = sink.bytes;
    ++m_writes;
    m_isConfirmed = false;
    return std::nullopt;
}

std::optional<FileError> ManualDocumentFile::confirm()
{
    const bool fails = !std::exchange(m_isConfirmed, true) && confirmError;
    return fails ? std::optional(FileError{*confirmError}) : std::nullopt;
}
