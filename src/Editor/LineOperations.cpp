#include "Editor/LineOperations.h"

#include "Editor/BlockOperations.h"
#include "Models/LineBreaks.h"

#include <algorithm>
#include <ranges>

namespace
{

struct Field {
    qsizetype row;
    QString *text;
    /// The index of the entry in its checklist; -1 for the text of a block.
    qsizetype todo = -1;
};

std::optional<Field> find(PelkoDocument &document, const TextAddress &field)
{
    const qsizetype row = BlockOperations::indexOf(document, field.blockID);
    if (row < 0)
        return std::nullopt;
    Block &block = document.blocks[row];
    if (!field.partID)
        return isTextLike(block.type) ? std::optional(Field{row, &block.content}) : std::nullopt;
    if (!block.todos)
        return std::nullopt;
    const auto entry = std::ranges::find(*block.todos, *field.partID, &TodoItem::id);
    if (entry == block.todos->end())
        return std::nullopt;
    return Field{row, &entry->text, entry - block.todos->begin()};
}

LineOperations::Stretch within(const QString &text, LineOperations::Stretch selected)
{
    const int start = std::clamp(selected.start, 0, int(text.size()));
    return {.start = start, .end = std::clamp(selected.end, start, int(text.size()))};
}

/// Returns whether Return leaves the code block: at a second empty line at its end.
bool leavesCode(const QString &text, LineOperations::Stretch selected)
{
    return selected.start == text.size() && text.endsWith(u'\n');
}

/// Returns the starts of the selected lines. A line at whose start the selection ends is not included.
QList<qsizetype> startsOfLines(const QString &text, LineOperations::Stretch selected)
{
    qsizetype start = selected.start;
    while (start > 0 && !isLineBreak(text.at(start - 1)))
        --start;
    QList<qsizetype> starts{start};
    for (qsizetype index = start; index < selected.end - 1; ++index) {
        const bool isCarriageReturn = text.at(index) == u'\r' && text.at(index + 1) == u'\n';
        if (isLineBreak(text.at(index)) && !isCarriageReturn)
            starts.append(index + 1);
    }
    return starts;
}

/// Returns the length of one step of indentation at the start of the line: a tab, or up to four spaces.
qsizetype indentation(QStringView line)
{
    if (line.startsWith(u'\t'))
        return 1;
    const auto firstLetter = std::ranges::find_if(line, [](QChar character) { return character != u' '; });
    return std::min<qsizetype>(firstLetter - line.begin(), 4);
}

FocusTarget insertBelow(PelkoDocument &document, const Field &field, const QString &text)
{
    Block &block = document.blocks[field.row];
    if (field.todo < 0) {
        document.blocks.insert(field.row + 1, Block(BlockType::textSmall, text));
        return {.address = {.blockID = document.blocks.at(field.row + 1).id}, .caret = 0};
    }
    const TodoItem rest{.text = text};
    block.todos->insert(field.todo + 1, rest);
    return {.address = {.blockID = block.id, .partID = rest.id}, .caret = 0};
}

} // namespace

std::optional<Edit> LineOperations::breakLine(PelkoDocument document, const TextAddress &field,
                                              Stretch selected)
{
    const auto found = find(document, field);
    if (!found)
        return std::nullopt;
    const auto [start, end] = within(*found->text, selected);
    found->text->replace(start, end - start, u'\n');
    return Edit{.document = std::move(document), .focus = FocusTarget{.address = field, .caret = start + 1}};
}

std::optional<Edit> LineOperations::split(PelkoDocument document, const TextAddress &field, Stretch selected)
{
    const auto found = find(document, field);
    if (!found)
        return std::nullopt;
    const auto [start, end] = within(*found->text, selected);
    const bool isLineOfCode =
        document.blocks.at(found->row).type == BlockType::code && found->text->contains(u'\n');
    const bool leaves = isLineOfCode && leavesCode(*found->text, {start, end});
    if (isLineOfCode && !leaves)
        return breakLine(std::move(document), field, selected);
    const QString rest = found->text->sliced(end);
    found->text->truncate(leaves ? start - 1 : start);
    const FocusTarget below = insertBelow(document, *found, rest);
    return Edit{.document = std::move(document), .focus = below};
}

std::optional<Edit> LineOperations::indent(PelkoDocument document, const TextAddress &field, Stretch selected)
{
    const auto found = find(document, field);
    if (!found)
        return std::nullopt;
    const QList<qsizetype> starts = startsOfLines(*found->text, within(*found->text, selected));
    for (const qsizetype start : std::views::reverse(starts))
        found->text->insert(start, u'\t');
    return Edit{.document = std::move(document)};
}

std::optional<Edit> LineOperations::unindent(PelkoDocument document, const TextAddress &field,
                                             Stretch selected)
{
    const auto found = find(document, field);
    if (!found)
        return std::nullopt;
    QString &text = *found->text;
    const QList<qsizetype> starts = startsOfLines(text, within(text, selected));
    for (const qsizetype start : std::views::reverse(starts))
        text.remove(start, indentation(QStringView(text).sliced(start)));
    return Edit{.document = std::move(document)};
}
