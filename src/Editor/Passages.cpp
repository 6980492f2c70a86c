#include "Editor/Passages.h"

#include "Editor/BlockOperations.h"

Passages::Passages(const PelkoDocument &document)
{
    const bool opensWithBanner = BlockOperations::firstBlockIsBanner(document);
    for (qsizetype row = 0; row < document.blocks.size(); ++row) {
        const Block &block = document.blocks.at(row);
        Passage passage{.id = {.blockID = block.id}, .row = row, .type = block.type};
        const auto todos = block.type == BlockType::sticky ? block.todos : std::nullopt;
        for (const TodoItem &todo : todos.value_or(QList<TodoItem>{})) {
            passage.id.partID = todo.id;
            passage.text = todo.text;
            add(passage);
        }
        if (passage.id.partID)
            continue;
        if (isTextLike(block.type))
            passage.text = block.content;
        else if (row == 0 && opensWithBanner)
            passage.text = block.bannerTitle.value_or(QString());
        add(passage);
    }
}

void Passages::add(Passage passage)
{
    if (m_index.contains(passage.id))
        return;
    m_index.insert(passage.id, m_passages.size());
    m_passages.append(std::move(passage));
}

std::optional<PagePosition> Passages::start() const
{
    if (m_passages.isEmpty())
        return std::nullopt;
    return PagePosition{.passage = m_passages.first().id};
}

std::optional<PagePosition> Passages::end() const
{
    if (m_passages.isEmpty())
        return std::nullopt;
    return PagePosition{.passage = m_passages.last().id, .offset = m_passages.last().length()};
}

const Passage *Passages::neighbour(const TextAddress &id, bool forward) const
{
    const qsizetype index = indexOf(id);
    const qsizetype next = forward ? index + 1 : index - 1;
    return index < 0 || next < 0 || next >= size() ? nullptr : &at(next);
}

const Passage *Passages::textNeighbour(const TextAddress &id, bool forward) const
{
    const Passage *next = neighbour(id, forward);
    while (next && !next->text)
        next = neighbour(next->id, forward);
    return next;
}
