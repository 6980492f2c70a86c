#pragma once

#include "Services/DocumentFile.h"

#include <functional>

/// A file in memory that counts its writes and fails when a test tells it to.
class ManualDocumentFile : public DocumentFile
{
public:
    /// What the file holds; nothing while it does not exist.
    std::optional<QByteArray> bytes;
    /// While set, every read or replacement fails with these words.
    std::optional<QString> readError;
    std::optional<QString> writeError;
    /// While set, a power cut would bring the old bytes back.
    std::optional<QString> confirmError;
    bool looksWritable = true;
    /// Called during each replacement.
    std::function<void()> whileWriting = [] {};

    /// The replacements that succeeded.
    int writes() const { return m_writes; }

    Contents read() override;
    [[nodiscard]] std::optional<FileError> replace(const Producer &produce) override;
    [[nodiscard]] std::optional<FileError> confirm() override;
    bool canReplace() const override { return looksWritable; }

private:
    int m_writes = 0;
    bool m_isConfirmed = true;
};
