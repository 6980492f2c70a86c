#pragma once

#include "Editor/TextAddress.h"
#include "Models/PelkoDocument.h"

#include <QHash>

/// A caret position on a page.
struct PagePosition {
    TextAddress passage;
    /// In UTF-16 units. A passage without text has two positions: 0 before it and 1 behind it.
    int offset = 0;

    bool operator==(const PagePosition &) const = default;
};

/// A text in which the caret moves character by character: of a block, of a banner or of an entry of a
/// checklist. Dividers, pictures and checklists without entries are passages without text.
struct Passage {
    TextAddress id;
    /// The row of its block on the page.
    qsizetype row = 0;
    BlockType type = BlockType::textSmall;
    /// std::nullopt if the passage cannot contain a caret.
    std::optional<QString> text = std::nullopt;

    int length() const { return text ? static_cast<int>(text->size()) : 1; }
};

/// The passages of a page in reading order. Of blocks with the same id only the first is included.
class Passages
{
public:
    Passages() = default;
    explicit Passages(const PelkoDocument &document);

    qsizetype size() const { return m_passages.size(); }
    const Passage &at(qsizetype index) const { return m_passages.at(index); }
    /// Returns the index, or -1.
    qsizetype indexOf(const TextAddress &id) const { return m_index.value(id, -1); }

    std::optional<PagePosition> start() const;
    std::optional<PagePosition> end() const;

    /// Returns the next passage in this direction, or nullptr at the end of the page.
    const Passage *neighbour(const TextAddress &id, bool forward) const;
    /// Returns the next passage that can contain a caret, or nullptr.
    const Passage *textNeighbour(const TextAddress &id, bool forward) const;

private:
    void add(Passage passage);

    QList<Passage> m_passages;
    QHash<TextAddress, qsizetype> m_index;
};
