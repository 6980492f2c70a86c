#pragma once

#include "Services/DocumentFile.h"

#include <functional>

/// A file in memory that counts its writes and fails on request.
class ManualDocumentFile : public DocumentFile
{
public:
    /// The contents of the file; std::nullopt if it does not exist.
    std::optional<QByteArray> bytes;
    /// While set, every read or replacement fails with this error.
    std::optional<QString> readError;
    std::optional<QString> writeError;
    /// While set, `confirm` fails, as if a power cut could restore the old contents.
    std::optional<QString> confirmError;
    bool looksWritable = true;
    /// Called during each replacement.
    std::function<void()> whileWriting = [] {};

    /// Returns the number of successful replacements.
    int writes() const { return m_writes; }

    Contents read() override;
    [[nodiscard]] std::optional<FileError> replace(const Producer &produce) override;
    [[nodiscard]] std::optional<FileError> confirm() override;
    bool canReplace() const override { return looksWritable; }

private:
    int m_writes = 0;
    bool m_isConfirmed = true;
};
