#include "writer/PageModel.h"

#include <algorithm>
#include <numeric>

// Operations of buttons, drags and the tasks panel on blocks and checklist entries. The caret stays in its
// text.

std::optional<Spot> PageModel::lastingCaret() const
{
    return m_marked && !isCrossing() ? std::optional(m_marked->head) : std::nullopt;
}

void PageModel::addBlock(BlockType kind)
{
    PlainBlock added{.kind = kind};
    if (kind == BlockType::sticky)
        added.entries = QList<PlainEntry>{{}};
    m_page.append(added);
    const Spot caret{.block = int(m_page.size()) - 1};
    settle(isTextLike(kind) ? std::optional(caret) : lastingCaret());
}

void PageModel::deleteBlock(int block)
{
    if (m_page.size() < 2)
        return;
    const bool endsSelection = isCrossing() && m_marked->anchor.block == block;
    m_page.removeAt(block);
    std::optional<Spot> caret = lastingCaret();
    if (endsSelection || (caret && caret->block == block))
        caret.reset();
    else if (caret && caret->block > block)
        --caret->block;
    settle(caret);
}

void PageModel::moveBlock(int from, int to)
{
    to = std::clamp(to, 0, int(m_page.size()) - 1);
    if (from == to)
        return;
    QList<int> order(m_page.size());
    std::iota(order.begin(), order.end(), 0);
    order.move(from, to);
    m_page.move(from, to);
    std::optional<Spot> caret = lastingCaret();
    if (caret)
        caret->block = int(order.indexOf(caret->block));
    // Only the first block shows its banner title.
    settle(caret && textAt(*caret) ? caret : std::nullopt);
}

void PageModel::toggleBanner(int block)
{
    const bool was = m_page.at(block).isFullWidth.value_or(false);
    m_page[block].isFullWidth = !was;
    if (was) {
        if (m_page.first().kind != BlockType::textLarge)
            m_page.prepend({.kind = BlockType::textLarge});
        return settle(std::nullopt);
    }
    const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t'; };
    const PlainBlock &first = m_page.first();
    if (block > 0 && first.kind == BlockType::textLarge && std::ranges::all_of(first.text, isBlank)) {
        m_page.removeFirst();
        --block;
    }
    m_page.move(block, 0);
    settle(std::nullopt);
}

void PageModel::addEntry(int block)
{
    PlainBlock &at = m_page[block];
    at.entries = at.entries.value_or(QList<PlainEntry>()) << PlainEntry();
    settle(Spot{.block = block, .entry = int(at.entries->size()) - 1});
}

void PageModel::toggleEntry(int block, int entry)
{
    bool &done = (*m_page[block].entries)[entry].done;
    done = !done;
    settle(lastingCaret());
}

void PageModel::removeEntry(int block, int entry)
{
    m_page[block].entries->removeAt(entry);
    std::optional<Spot> caret = lastingCaret();
    if (caret && caret->block == block && caret->entry == entry)
        caret.reset();
    else if (caret && caret->block == block && caret->entry > entry)
        --caret->entry;
    settle(caret);
}

void PageModel::insertPicture(int behind, const QByteArray &mark)
{
    m_page.insert(behind + 1, {.kind = BlockType::image, .picture = mark});
    std::optional<Spot> caret = lastingCaret();
    if (caret && caret->block > behind)
        ++caret->block;
    settle(caret);
}

void PageModel::setPicture(int block, const QByteArray &mark)
{
    m_page[block].picture = mark;
    settle(lastingCaret());
}

void PageModel::quickAdd(const QString &text)
{
    const auto sticky = std::ranges::find(m_page, BlockType::sticky, &PlainBlock::kind);
    if (sticky == m_page.end())
        m_page.append({.kind = BlockType::sticky, .entries = QList<PlainEntry>{{.text = text}}});
    else
        sticky->entries = sticky->entries.value_or(QList<PlainEntry>()) << PlainEntry{.text = text};
    settle(lastingCaret());
}
