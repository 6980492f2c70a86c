#pragma once

#include "Editor/TextAddress.h"
#include "Models/PelkoDocument.h"

#include <QHash>

/// A place between two characters of a page.
struct PagePosition {
    TextAddress passage;
    /// Counted in UTF-16 units. A passage without text has one place before it, 0, and one behind it, 1.
    int offset = 0;

    bool operator==(const PagePosition &) const = default;
};

/// What a caret runs through without a jump: the text of a block, of a banner or of an entry of a checklist.
/// A divider, a picture and a checklist without entries are passages without text.
struct Passage {
    TextAddress id;
    /// Where its block stands on the page.
    qsizetype row = 0;
    BlockType type = BlockType::textSmall;
    /// Nothing where no caret can stand.
    std::optional<QString> text = std::nullopt;

    int length() const { return text ? static_cast<int>(text->size()) : 1; }
};

/// The passages of a page in reading order. Of blocks that share an id the first counts.
class Passages
{
public:
    Passages() = default;
    explicit Passages(const PelkoDocument &document);

    qsizetype size() const { return m_passages.size(); }
    const Passage &at(qsizetype index) const { return m_passages.at(index); }
    /// Where it stands, or -1.
    qsizetype indexOf(const TextAddress &id) const { return m_index.value(id, -1); }

    std::optional<PagePosition> start() const;
    std::optional<PagePosition> end() const;

    /// The next passage behind or before this one; nothing at the end of the page.
    const Passage *neighbour(const TextAddress &id, bool forward) const;
    /// The next one that a caret can stand in.
    const Passage *textNeighbour(const TextAddress &id, bool forward) const;

private:
    void add(Passage passage);

    QList<Passage> m_passages;
    QHash<TextAddress, qsizetype> m_index;
};
