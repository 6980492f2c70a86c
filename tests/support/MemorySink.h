#pragma once

#include "Services/DocumentFile.h"

#include <limits>

/// Keeps what is written, up to `capacity` bytes; then it fails like a full disk.
class MemorySink : public ByteSink
{
public:
    QByteArray bytes;
    qsizetype capacity = std::numeric_limits<qsizetype>::max();

    [[nodiscard]] std::optional<FileError> write(QByteArrayView piece) override
    {
        if (piece.size() > capacity - bytes.size())
            return FileError{QStringLiteral("No space left on device")};
        bytes.append(piece);
        return std::nullopt;
    }
};
