#pragma once

#include "Editor/Passages.h"

#include <QSet>

/// The selection on a page, from its anchor to its moving end.
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
    /// The selected text; std::nullopt if the passage has no text.
    std::optional<QString> text() const;
};

/// The parts of a selection in reading order. A passage without text is included only if the selection covers
/// it. Empty if an end of the selection is not on the page.
class SelectedParts
{
public:
    SelectedParts() = default;
    SelectedParts(const Passages &passages, const BlockSelection &selection);

    const QList<SelectedPart> &all() const { return m_parts; }
    /// Returns whether it contains several passages, or one without text.
    bool isCrossing() const;
    /// Returns the part of the passage, or nullptr.
    const SelectedPart *of(const TextAddress &id) const;
    /// Returns whether a block such as a picture or a checklist is selected as a whole, from a position
    /// outside.
    bool covers(const QUuid &blockID) const { return m_covered.contains(blockID); }

private:
    void cover(const Passages &passages);

    QList<SelectedPart> m_parts;
    QHash<TextAddress, qsizetype> m_index;
    QSet<QUuid> m_covered;
};
