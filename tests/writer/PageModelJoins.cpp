#include "writer/PageModel.h"

// Backspace at the start of a text and Delete at its end.

Spot PageModel::edgeOf(int block, bool start) const
{
    const PlainBlock &at = m_page.at(block);
    Spot edge{.block = block};
    if (hasEntries(block))
        edge.entry = start ? 0 : int(at.entries->size()) - 1;
    if (const QString *text = start ? nullptr : textAt(edge))
        edge.offset = int(text->size());
    return edge;
}

Spot PageModel::append(int block, const QString &text)
{
    const Spot seam = edgeOf(block, false);
    *editableText(seam) += text;
    return seam;
}

void PageModel::becomeBody(int block, const QString &text)
{
    PlainBlock &at = m_page[block];
    at.kind = BlockType::textSmall;
    at.text = text;
    at.entries.reset();
    settle(Spot{.block = block});
}

void PageModel::joinBackwards(Spot at)
{
    if (at.entry >= 0)
        return entryBackwards(at);
    const PlainBlock block = m_page.at(at.block);
    if (!isTextLike(block.kind))
        return;
    const bool isEmpty = block.text.isEmpty();
    if (isEmpty && at.block > 0 && isTextLike(m_page.at(at.block - 1).kind)) {
        m_page.removeAt(at.block);
        return settle(edgeOf(at.block - 1, false));
    }
    const bool isLeadingHeading = isEmpty && at.block == 0 && block.kind == BlockType::textLarge;
    if (block.kind != BlockType::textSmall && !isLeadingHeading)
        return becomeBody(at.block, block.text);
    if (at.block == 0)
        return;
    // Before a block without text, or from an empty block behind a checklist, only the caret moves.
    if (isEmpty || !takesText(at.block - 1)) {
        const Spot edge = edgeOf(at.block - 1, false);
        m_marked = textAt(edge) ? std::optional(Marked{.anchor = edge, .head = edge}) : std::nullopt;
        return;
    }
    const Spot seam = append(at.block - 1, block.text);
    m_page.removeAt(at.block);
    settle(seam);
}

void PageModel::entryBackwards(Spot at)
{
    QList<PlainEntry> &entries = *m_page[at.block].entries;
    const QString text = entries.at(at.entry).text;
    if (at.entry > 0) {
        entries.removeAt(at.entry);
        QString &above = entries[at.entry - 1].text;
        const Spot seam{.block = at.block, .entry = at.entry - 1, .offset = int(above.size())};
        above += text;
        return settle(seam);
    }
    if (entries.size() == 1)
        return becomeBody(at.block, text);
    entries.removeFirst();
    if (text.isEmpty())
        return settle(edgeOf(at.block, true));
    m_page.insert(at.block, {.kind = BlockType::textSmall, .text = text});
    settle(Spot{.block = at.block});
}

QString PageModel::takeFirstText(int block)
{
    PlainBlock &at = m_page[block];
    if (hasEntries(block) && at.entries->size() > 1)
        return at.entries->takeFirst().text;
    const QString text = hasEntries(block) ? at.entries->first().text : at.text;
    m_page.removeAt(block);
    return text;
}

void PageModel::joinForwards(Spot at)
{
    if (at.entry < 0 && !isTextLike(m_page.at(at.block).kind))
        return;
    if (at.entry >= 0 && at.entry + 1 < m_page.at(at.block).entries->size()) {
        QList<PlainEntry> &entries = *m_page[at.block].entries;
        if (entries.at(at.entry).text.isEmpty())
            entries.removeAt(at.entry);
        else
            entries[at.entry].text += entries.takeAt(at.entry + 1).text;
        return settle(at);
    }
    if (at.block + 1 == m_page.size())
        return;
    const Spot below = edgeOf(at.block + 1, true);
    if (!takesText(at.block + 1)) {
        m_marked.reset();
        return;
    }
    const PlainBlock &block = m_page.at(at.block);
    if (block.kind == BlockType::textSmall && block.text.isEmpty()) {
        m_page.removeAt(at.block);
        return settle(Spot{.block = at.block, .entry = below.entry});
    }
    const QString text = takeFirstText(at.block + 1);
    settle(append(at.block, text));
}

void PageModel::removeWhole(int block)
{
    if (m_page.size() < 2)
        return;
    m_page.removeAt(block);
    settle(std::nullopt);
}

void PageModel::cutWhole(int block)
{
    m_page[block] = {.kind = BlockType::textSmall};
    settle(Spot{.block = block});
}
