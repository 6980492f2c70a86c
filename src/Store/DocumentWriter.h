#pragma once

#include "Models/PelkoDocument.h"
#include "Services/DocumentFile.h"

#include <span>
#include <vector>

class JsonText;

/// Writes the text of "data.json" to a sink. It keeps the text of unchanged pages, so that one changed page
/// among ten thousand costs the encoding of a few. A page is unchanged while it shares its list of blocks
/// with the written one; every change detaches the list. The text of pages with pictures is not kept, and of
/// the others at most `memoryLimit` bytes.
class DocumentWriter
{
public:
    static constexpr qsizetype memoryLimit = 16 * 1024 * 1024;

    [[nodiscard]] std::optional<FileError> write(const QList<PelkoDocument> &documents, ByteSink &sink);

    /// The number of pages that the last write had to encode; for tests.
    qsizetype encodedDocuments() const { return m_encodedDocuments; }

private:
    using Documents = std::span<const PelkoDocument>;

    /// Neighbours in the list and their text, without the commas around it.
    struct Chunk {
        QList<PelkoDocument> documents;
        QByteArray json;
    };

    static constexpr std::size_t chunkLength = 4;

    void putChunk(JsonText &text, Documents documents, Chunk &written);

    std::vector<Chunk> m_chunks;
    qsizetype m_rememberedBytes = 0;
    qsizetype m_encodedDocuments = 0;
};
