#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <variant>

/// Takes the bytes of a file in order, as they are made.
class ByteSink
{
public:
    virtual ~ByteSink() = default;

    /// False when the bytes could not be taken; nothing more need be offered then.
    virtual bool write(QByteArrayView bytes) = 0;
};

/// A failure of the file system, in the system's own words.
struct FileError {
    QString description;
};

/// The one file that holds the documents.
class DocumentFile
{
public:
    struct Missing {
    };
    using Contents = std::variant<Missing, QByteArray, FileError>;
    using Producer = std::function<bool(ByteSink &)>;

    virtual ~DocumentFile() = default;

    /// The whole file, all of it in memory.
    virtual Contents read() = 0;

    /// Replaces the file by what `produce` writes. After an error the file is what it was before; without
    /// one, the new bytes have reached the disk.
    [[nodiscard]] virtual std::optional<FileError> replace(const Producer &produce) = 0;
};
