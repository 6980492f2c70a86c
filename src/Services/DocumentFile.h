#pragma once

#include "Services/FileError.h"

#include <QByteArray>

#include <functional>
#include <optional>
#include <variant>

/// Receives the bytes of a file in order.
class ByteSink
{
public:
    virtual ~ByteSink() = default;

    /// After an error, further writes are unnecessary.
    [[nodiscard]] virtual std::optional<FileError> write(QByteArrayView bytes) = 0;
};

/// The one file that holds the documents.
class DocumentFile
{
public:
    struct Missing {
    };
    using Contents = std::variant<Missing, QByteArray, FileError>;
    using Producer = std::function<std::optional<FileError>(ByteSink &)>;

    virtual ~DocumentFile() = default;

    /// Reads the whole file into memory.
    virtual Contents read() = 0;

    /// Replaces the contents with the bytes that `produce` writes. After an error, also of `produce`, the
    /// file is unchanged. After success the new bytes are on the disk, but until `confirm` returns a power
    /// cut can restore the old version.
    [[nodiscard]] virtual std::optional<FileError> replace(const Producer &produce) = 0;

    /// Waits until the last replacement is durable. The synchronisation runs already, so this is usually
    /// short.
    [[nodiscard]] virtual std::optional<FileError> confirm() = 0;

    /// Returns whether `replace` would probably succeed now. Cheap.
    virtual bool canReplace() const = 0;
};
