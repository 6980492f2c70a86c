#include "Editor/LineOperations.h"

#include "Editor/BlockOperations.h"

#include <algorithm>

namespace
{

struct Field {
    qsizetype row;
    QString *text;
    /// Where the entry stands in its checklist; -1 for a block's own text.
    qsizetype todo = -1;
};

std::optional<Field> find(PelkoDocument &document, const FocusTarget &field)
{
    const qsizetype row = BlockOperations::indexOf(document, field.blockID);
    if (row < 0)
        return std::nullopt;
    Block &block = document.blocks[row];
    if (!field.todoID)
        return isTextLike(block.type) ? std::optional(Field{row, &block.content}) : std::nullopt;
    if (!block.todos)
        return std::nullopt;
    const auto entry = std::ranges::find(*block.todos, *field.todoID, &TodoItem::id);
    if (entry == block.todos->end())
        return std::nullopt;
    return Field{row, &entry->text, entry - block.todos->begin()};
}

LineOperations::Stretch within(const QString &text, LineOperations::Stretch selected)
{
    const int start = std::clamp(selected.start, 0, int(text.size()));
    return {.start = start, .end = std::clamp(selected.end, start, int(text.size()))};
}

/// A second empty line at the end of code says that the code is over.
bool leavesCode(const QString &text, LineOperations::Stretch selected)
{
    return selected.start == text.size() && text.endsWith(u'\n');
}

FocusTarget insertBelow(PelkoDocument &document, const Field &field, const QString &text)
{
    Block &block = document.blocks[field.row];
    if (field.todo < 0) {
        document.blocks.insert(field.row + 1, Block(BlockType::textSmall, text));
        return {.blockID = document.blocks.at(field.row + 1).id, .caret = 0};
    }
    const TodoItem rest{.text = text};
    block.todos->insert(field.todo + 1, rest);
    return {.blockID = block.id, .todoID = rest.id, .caret = 0};
}

} // namespace

std::optional<Edit> LineOperations::breakLine(PelkoDocument document, const FocusTarget &field,
                                              Stretch selected)
{
    const auto found = find(document, field);
    if (!found)
        return std::nullopt;
    const auto [start, end] = within(*found->text, selected);
    found->text->replace(start, end - start, u'\n');
    FocusTarget behind = field;
    behind.caret = start + 1;
    return Edit{.document = std::move(document), .focus = behind};
}

std::optional<Edit> LineOperations::split(PelkoDocument document, const FocusTarget &field, Stretch selected)
{
    const auto found = find(document, field);
    if (!found)
        return std::nullopt;
    const auto [start, end] = within(*found->text, selected);
    const bool isCode = document.blocks.at(found->row).type == BlockType::code;
    const bool leaves = isCode && leavesCode(*found->text, {start, end});
    if (isCode && !leaves)
        return breakLine(std::move(document), field, selected);
    const QString rest = found->text->sliced(end);
    found->text->truncate(leaves ? start - 1 : start);
    const FocusTarget below = insertBelow(document, *found, rest);
    return Edit{.document = std::move(document), .focus = below};
}
