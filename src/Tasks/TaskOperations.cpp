#include "Tasks/TaskOperations.h"

#include <algorithm>

namespace
{
Block &firstChecklist(PelkoDocument &doc)
{
    const auto found = std::ranges::find(doc.blocks, BlockType::sticky, &Block::type);
    if (found != doc.blocks.end())
        return *found;
    doc.blocks.resize(doc.blocks.size() + 1);
    Block &added = doc.blocks.last();
    added.id = QUuid::createUuid();
    added.type = BlockType::sticky;
    return added;
}

Block *find(PelkoDocument &doc, const QUuid &blockID)
{
    const auto found = std::ranges::find(doc.blocks, blockID, &Block::id);
    return found == doc.blocks.end() ? nullptr : &*found;
}
} // namespace

std::optional<PelkoDocument> TaskOperations::deleteTodo(PelkoDocument doc, const QUuid &blockID,
                                                        const QUuid &todoID)
{
    Block *block = find(doc, blockID);
    if (!block)
        return std::nullopt;
    if (block->todos)
        block->todos->removeIf([&todoID](const TodoItem &todo) { return todo.id == todoID; });
    return doc;
}

PelkoDocument TaskOperations::addQuickTask(PelkoDocument doc, const QString &text)
{
    Block &checklist = firstChecklist(doc);
    if (!checklist.todos)
        checklist.todos.emplace();
    checklist.todos->append(TodoItem{.text = text});
    return doc;
}
