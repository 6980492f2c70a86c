#include "Store/DocumentWriter.h"

#include "Store/JsonText.h"

#include <algorithm>

namespace
{
void put(JsonText &text, const TodoItem &item)
{
    text.put("{\"id\":");
    text.putUuid(item.id);
    text.put(",\"text\":");
    text.putString(item.text);
    text.put(",\"done\":");
    text.putBool(item.done);
    text.put("}");
}

template <typename Values>
void putElements(JsonText &text, const Values &values);

template <typename Value>
void putArray(JsonText &text, const QList<Value> &values)
{
    text.put("[");
    putElements(text, values);
    text.put("]");
}

void put(JsonText &text, const Block &block)
{
    text.put("{\"id\":");
    text.putUuid(block.id);
    text.put(",\"type\":");
    text.putString(rawValue(block.type));
    text.put(",\"content\":");
    text.putString(block.content);
    if (block.imageData) {
        text.put(",\"imageData\":");
        text.putBytes(*block.imageData);
    }
    if (block.todos) {
        text.put(",\"todos\":");
        putArray(text, *block.todos);
    }
    if (block.isFullWidth) {
        text.put(",\"isFullWidth\":");
        text.putBool(*block.isFullWidth);
    }
    if (block.bannerTitle) {
        text.put(",\"bannerTitle\":");
        text.putString(*block.bannerTitle);
    }
    text.put("}");
}

void put(JsonText &text, const PelkoDocument &document)
{
    text.put("{\"id\":");
    text.putUuid(document.id);
    text.put(",\"space\":");
    text.putString(rawValue(document.space));
    text.put(",\"blocks\":");
    putArray(text, document.blocks);
    text.put(",\"createdAt\":");
    text.putNumber(document.createdAt);
    if (document.updatedAt) {
        text.put(",\"updatedAt\":");
        text.putNumber(*document.updatedAt);
    }
    if (document.isPinned) {
        text.put(",\"isPinned\":");
        text.putBool(*document.isPinned);
    }
    if (document.isArchived) {
        text.put(",\"isArchived\":");
        text.putBool(*document.isArchived);
    }
    text.put("}");
}

template <typename Values>
void putElements(JsonText &text, const Values &values)
{
    bool first = true;
    for (const auto &value : values) {
        if (!first)
            text.put(",");
        put(text, value);
        first = false;
    }
}

bool holdsPictures(std::span<const PelkoDocument> documents)
{
    return std::ranges::any_of(documents, [](const PelkoDocument &document) {
        return std::ranges::any_of(document.blocks,
                                   [](const Block &block) { return block.imageData.has_value(); });
    });
}
} // namespace

std::optional<FileError> DocumentWriter::write(const QList<PelkoDocument> &documents, ByteSink &sink)
{
    const Documents all(documents.constData(), std::size_t(documents.size()));
    m_chunks.resize((all.size() + chunkLength - 1) / chunkLength);
    m_rememberedBytes = 0;
    m_encodedDocuments = 0;

    JsonText text(sink);
    text.put("[");
    for (std::size_t index = 0; index < m_chunks.size() && !text.hasFailed(); ++index) {
        if (index > 0)
            text.put(",");
        const std::size_t start = index * chunkLength;
        putChunk(text, all.subspan(start, std::min(chunkLength, all.size() - start)), m_chunks[index]);
    }
    text.put("]");
    return text.finish();
}

void DocumentWriter::putChunk(JsonText &text, Documents documents, Chunk &written)
{
    if (std::ranges::equal(documents, written.documents, isUnchanged)) {
        m_rememberedBytes += written.json.size();
        text.put(written.json);
        return;
    }
    written = {};
    m_encodedDocuments += qsizetype(documents.size());
    if (holdsPictures(documents)) {
        putElements(text, documents);
        return;
    }
    JsonText own;
    putElements(own, documents);
    const QByteArray json = own.take();
    text.put(json);
    text.inheritError(own);
    m_rememberedBytes += json.size();
    if (m_rememberedBytes <= memoryLimit && !own.hasFailed())
        written = {QList(documents.begin(), documents.end()), json};
}
