#pragma once

#include "Services/FileError.h"

#include <QByteArray>

#include <functional>
#include <optional>
#include <variant>

/// Takes the bytes of a file in order, as they are made.
class ByteSink
{
public:
    virtual ~ByteSink() = default;

    /// After an error nothing more need be offered.
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

    /// The whole file, all of it in memory.
    virtual Contents read() = 0;

    /// Replaces the file by what `produce` writes. After an error, `produce`'s own included, the file is what
    /// it was before; without one, the new bytes are on the disk and the file's name stands for them. Until
    /// `confirm` has returned, a power cut may give it back to the old bytes.
    [[nodiscard]] virtual std::optional<FileError> replace(const Producer &produce) = 0;

    /// Waits until the last replacement is there to stay. The disk is at it already, so that after a moment
    /// there is nothing to wait for.
    [[nodiscard]] virtual std::optional<FileError> confirm() = 0;

    /// Whether a replacement looks possible now. Cheap, and no promise.
    virtual bool canReplace() const = 0;
};
