#pragma once

#include "Editor/Passages.h"

#include <QSet>

/// What the writer has selected on a page: from where it was begun to where it has come.
struct BlockSelection {
    PagePosition anchor;
    PagePosition head;

    bool operator==(const BlockSelection &) const = default;
};

/// The selected part of one passage.
struct SelectedPart {
    Passage passage;
    int start = 0;
    int end = 0;

    bool isWhole() const { return start == 0 && end == passage.length(); }
    /// The selected text; nothing where the passage has none.
    std::optional<QString> text() const;
};

/// A selection laid over a page: its parts in reading order. A passage without text that the selection only
/// touches from one side does not belong to it. No parts where an end of the selection is not on the page.
class SelectedParts
{
public:
    SelectedParts() = default;
    SelectedParts(const Passages &passages, const BlockSelection &selection);

    const QList<SelectedPart> &all() const { return m_parts; }
    /// Whether it reaches over more than one passage, or holds one without text.
    bool isCrossing() const;
    /// The part of that passage, or nothing.
    const SelectedPart *of(const TextAddress &id) const;
    /// Whether a block that is more than text, such as a picture or a checklist, is selected as a whole, from
    /// a place outside.
    bool covers(const QUuid &blockID) const { return m_covered.contains(blockID); }

private:
    void cover(const Passages &passages);

    QList<SelectedPart> m_parts;
    QHash<TextAddress, qsizetype> m_index;
    QSet<QUuid> m_covered;
};
