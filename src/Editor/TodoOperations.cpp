#include "Editor/TodoOperations.h"

#include "Editor/BlockOperations.h"

#include <algorithm>

namespace
{

struct TodoPlace {
    qsizetype block;
    qsizetype todo;
};

std::optional<TodoPlace> find(const PelkoDocument &document, const TextAddress &entry)
{
    const qsizetype block = BlockOperations::indexOf(document, entry.blockID);
    if (block < 0 || !entry.partID || !document.blocks.at(block).todos)
        return std::nullopt;
    const QList<TodoItem> &todos = *document.blocks.at(block).todos;
    const auto found = std::ranges::find(todos, *entry.partID, &TodoItem::id);
    if (found == todos.end())
        return std::nullopt;
    return TodoPlace{block, found - todos.begin()};
}

TodoItem &itemAt(PelkoDocument &document, TodoPlace place)
{
    return (*document.blocks[place.block].todos)[place.todo];
}

Edit breakUp(PelkoDocument document, TodoPlace place, const QString &text, int caret)
{
    Block &block = document.blocks[place.block];
    const QStringList lines = text.split(u'\n');
    (*block.todos)[place.todo].text = lines.first();
    block.todos->insert(place.todo + 1, lines.size() - 1, TodoItem());
    for (qsizetype line = 1; line < lines.size(); ++line)
        (*block.todos)[place.todo + line] = TodoItem{.text = lines.at(line)};

    const TodoItem &last = block.todos->at(place.todo + lines.size() - 1);
    const auto lastStart = static_cast<int>(text.size() - last.text.size());
    const FocusTarget focus{.address = {.blockID = block.id, .partID = last.id},
                            .caret = std::max(caret - lastStart, 0)};
    return {std::move(document), focus};
}

} // namespace

std::optional<Edit> TodoOperations::setText(PelkoDocument document, const TextAddress &entry,
                                            const QString &text, int caret)
{
    const auto place = find(document, entry);
    if (!place)
        return std::nullopt;
    TodoItem &item = itemAt(document, *place);
    if (text.contains(u'\n') && !item.text.contains(u'\n'))
        return breakUp(std::move(document), *place, text, caret);
    item.text = text;
    return Edit{std::move(document)};
}

std::optional<Edit> TodoOperations::toggle(PelkoDocument document, const TextAddress &entry)
{
    const auto place = find(document, entry);
    if (!place)
        return std::nullopt;
    TodoItem &item = itemAt(document, *place);
    item.done = !item.done;
    return Edit{std::move(document)};
}

std::optional<Edit> TodoOperations::append(PelkoDocument document, const QUuid &blockID)
{
    const qsizetype index = BlockOperations::indexOf(document, blockID);
    if (index < 0 || document.blocks.at(index).type != BlockType::sticky)
        return std::nullopt;
    TodoItem item;
    const FocusTarget focus{.address = {.blockID = blockID, .partID = item.id}};
    Block &block = document.blocks[index];
    block.todos = block.todos.value_or(QList<TodoItem>{}) << std::move(item);
    return Edit{std::move(document), focus};
}

std::optional<Edit> TodoOperations::remove(PelkoDocument document, const TextAddress &entry,
                                           const std::optional<FocusTarget> &caret)
{
    const auto place = find(document, entry);
    if (!place)
        return std::nullopt;
    QList<TodoItem> &todos = *document.blocks[place->block].todos;
    todos.removeAt(place->todo);
    const bool isElsewhere = caret && caret->address != entry;
    std::optional<FocusTarget> focus;
    if (!todos.isEmpty() && !isElsewhere)
        focus = FocusTarget{.address = {.blockID = entry.blockID,
                                        .partID = todos.at(std::max<qsizetype>(place->todo - 1, 0)).id}};
    return Edit{std::move(document), focus};
}
