#include "Editor/JoinOperations.h"

#include "Editor/BlockOperations.h"
#include "Editor/TypingRules.h"

#include <algorithm>

namespace
{

qsizetype indexOfTodo(const Block &block, const TextAddress &text)
{
    if (!text.partID || !block.todos)
        return -1;
    const auto found = std::ranges::find(*block.todos, *text.partID, &TodoItem::id);
    return found == block.todos->end() ? -1 : found - block.todos->begin();
}

bool hasEntries(const Block &block)
{
    return block.type == BlockType::sticky && block.todos && !block.todos->isEmpty();
}

/// Returns the start or end of a block's text, or the block itself if it is a divider or picture.
FocusTarget edgeOf(const Block &block, bool start)
{
    FocusTarget edge{.address = {.blockID = block.id}, .caret = start ? 0 : FocusTarget::atEnd};
    if (hasEntries(block))
        edge.address.partID = start ? block.todos->first().id : block.todos->last().id;
    return edge;
}

/// Appends text to a block and returns the caret between the two.
FocusTarget append(Block &block, const QString &text)
{
    FocusTarget seam = edgeOf(block, false);
    QString &target = hasEntries(block) ? block.todos->last().text : block.content;
    seam.caret = int(target.size());
    target += text;
    return seam;
}

bool takesText(const Block &block)
{
    return isTextLike(block.type) || hasEntries(block);
}

Edit becomeBody(PelkoDocument document, qsizetype row, const QString &text)
{
    Block &block = document.blocks[row];
    block.type = BlockType::textSmall;
    block.content = text;
    block.todos.reset();
    const FocusTarget start{.address = {.blockID = block.id}, .caret = 0};
    return {.document = std::move(document), .focus = start};
}

/// Deletes an empty block, or turns it into body text, by the rules of typing. The page keeps an empty
/// leading heading.
std::optional<Edit> backwardsFromEmpty(const PelkoDocument &document, qsizetype row)
{
    const Block &block = document.blocks.at(row);
    auto edit = TypingRules::apply(document, block.id, {}, 0);
    if (edit && edit->document.blocks.size() < document.blocks.size())
        return edit;
    const bool isLeadingHeading = row == 0 && block.type == BlockType::textLarge;
    if (block.type != BlockType::textSmall && !isLeadingHeading)
        return becomeBody(document, row, {});
    if (row == 0)
        return std::nullopt;
    return Edit{.document = document, .focus = edgeOf(document.blocks.at(row - 1), false)};
}

std::optional<Edit> blockBackwards(PelkoDocument document, qsizetype row)
{
    const Block block = document.blocks.at(row);
    if (block.content.isEmpty())
        return backwardsFromEmpty(document, row);
    if (block.type != BlockType::textSmall)
        return becomeBody(std::move(document), row, block.content);
    if (row == 0)
        return std::nullopt;
    if (!takesText(document.blocks.at(row - 1)))
        return Edit{.document = document, .focus = edgeOf(document.blocks.at(row - 1), false)};
    const FocusTarget seam = append(document.blocks[row - 1], block.content);
    document.blocks.removeAt(row);
    return Edit{.document = std::move(document), .focus = seam};
}

/// Turns the first entry of the checklist into body text above it.
Edit leaveChecklist(PelkoDocument document, qsizetype row)
{
    QList<TodoItem> &todos = *document.blocks[row].todos;
    const TodoItem first = todos.first();
    if (todos.size() == 1)
        return becomeBody(std::move(document), row, first.text);
    todos.removeFirst();
    FocusTarget start = edgeOf(document.blocks.at(row), true);
    if (!first.text.isEmpty()) {
        document.blocks.insert(row, Block(BlockType::textSmall, first.text));
        start = {.address = {.blockID = document.blocks.at(row).id}, .caret = 0};
    }
    return {.document = std::move(document), .focus = start};
}

Edit todoBackwards(PelkoDocument document, qsizetype row, qsizetype todo)
{
    if (todo == 0)
        return leaveChecklist(std::move(document), row);
    Block &block = document.blocks[row];
    const TodoItem joined = block.todos->takeAt(todo);
    TodoItem &above = (*block.todos)[todo - 1];
    const FocusTarget seam{.address = {.blockID = block.id, .partID = above.id},
                           .caret = int(above.text.size())};
    above.text += joined.text;
    return {.document = std::move(document), .focus = seam};
}

/// Removes the first text of a block and returns it; a block without another text is removed as a whole.
QString takeText(PelkoDocument &document, qsizetype row)
{
    Block &block = document.blocks[row];
    if (hasEntries(block) && block.todos->size() > 1)
        return block.todos->takeFirst().text;
    const QString text = hasEntries(block) ? block.todos->first().text : block.content;
    document.blocks.removeAt(row);
    return text;
}

Edit blockForwards(PelkoDocument document, qsizetype row)
{
    const FocusTarget below = edgeOf(document.blocks.at(row + 1), true);
    const Block &block = document.blocks.at(row);
    const bool makesWay = block.type == BlockType::textSmall && block.content.isEmpty();
    if (!takesText(document.blocks.at(row + 1)))
        return {.document = std::move(document), .focus = below};
    if (makesWay) {
        document.blocks.removeAt(row);
        return {.document = std::move(document), .focus = below};
    }
    const QString text = takeText(document, row + 1);
    const FocusTarget seam = append(document.blocks[row], text);
    return {.document = std::move(document), .focus = seam};
}

Edit todoForwards(PelkoDocument document, qsizetype row, qsizetype todo)
{
    Block &block = document.blocks[row];
    QList<TodoItem> &todos = *block.todos;
    const TodoItem below = todos.at(todo + 1);
    if (todos.at(todo).text.isEmpty()) {
        todos.removeAt(todo);
        const FocusTarget start{.address = {.blockID = block.id, .partID = below.id}, .caret = 0};
        return {.document = std::move(document), .focus = start};
    }
    const FocusTarget seam{.address = {.blockID = block.id, .partID = todos.at(todo).id},
                           .caret = int(todos.at(todo).text.size())};
    todos[todo].text += below.text;
    todos.removeAt(todo + 1);
    return {.document = std::move(document), .focus = seam};
}

} // namespace

std::optional<Edit> JoinOperations::backwards(PelkoDocument document, const TextAddress &text)
{
    const qsizetype row = BlockOperations::indexOf(document, text.blockID);
    if (row < 0)
        return std::nullopt;
    const qsizetype todo = indexOfTodo(document.blocks.at(row), text);
    if (todo >= 0)
        return todoBackwards(std::move(document), row, todo);
    if (text.partID || !isTextLike(document.blocks.at(row).type))
        return std::nullopt;
    return blockBackwards(std::move(document), row);
}

std::optional<Edit> JoinOperations::forwards(PelkoDocument document, const TextAddress &text)
{
    const qsizetype row = BlockOperations::indexOf(document, text.blockID);
    if (row < 0)
        return std::nullopt;
    const Block &block = document.blocks.at(row);
    const qsizetype todo = indexOfTodo(block, text);
    if (todo >= 0 && todo + 1 < block.todos->size())
        return todoForwards(std::move(document), row, todo);
    const bool isText = todo >= 0 || (!text.partID && isTextLike(block.type));
    if (!isText || row + 1 == document.blocks.size())
        return std::nullopt;
    return blockForwards(std::move(document), row);
}

std::optional<Edit> JoinOperations::remove(PelkoDocument document, const QUuid &blockID, bool forward)
{
    const qsizetype row = BlockOperations::indexOf(document, blockID);
    auto edit = BlockOperations::deleteBlock(std::move(document), blockID);
    if (!edit)
        return std::nullopt;
    const QList<Block> &blocks = edit->document.blocks;
    const bool toBelow = row == 0 || (row < blocks.size() && (forward || !takesText(blocks.at(row - 1))));
    edit->focus = toBelow ? edgeOf(blocks.at(row), true) : edgeOf(blocks.at(row - 1), false);
    return edit;
}
