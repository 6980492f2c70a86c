#pragma once

#include "Models/PelkoDocument.h"
#include "Services/DocumentFile.h"

#include <span>
#include <vector>

class JsonText;

/// Writes the text of "data.json", piece by piece as it is made. It remembers the text of what it wrote
/// last, so that one changed page among ten thousand costs the encoding of a few; a page counts as unchanged
/// while it still shares its list of blocks with the one that was written, which no change leaves as it is.
/// Pages with pictures are not remembered, and of the others no more than `memoryLimit` bytes.
class DocumentWriter
{
public:
    static constexpr qsizetype memoryLimit = 16 * 1024 * 1024;

    [[nodiscard]] std::optional<FileError> write(const QList<PelkoDocument> &documents, ByteSink &sink);

    /// The pages that the last writing had to encode.
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
