#include "Editor/SelectionOperations.h"

#include "Editor/BlockOperations.h"
#include "Editor/ImageOperations.h"
#include "Editor/LineOperations.h"
#include "Editor/TodoOperations.h"
#include "Editor/TypingRules.h"
#include "Models/LineBreaks.h"

#include <algorithm>

namespace
{

/// The passage that stays, with what is left of the text around the selection.
struct Seam {
    PassageID passage = {};
    QString before = {};
    QString after = {};
};

bool leavesText(const SelectedPart &end, const SelectedParts &parts)
{
    return end.passage.text && !parts.covers(end.passage.id.blockID);
}

std::optional<Seam> seamOf(const SelectedParts &parts)
{
    const SelectedPart &first = parts.all().first();
    const SelectedPart &last = parts.all().last();
    const QString after = leavesText(last, parts) ? last.passage.text->sliced(last.end) : QString();
    if (leavesText(first, parts))
        return Seam{
            .passage = first.passage.id, .before = first.passage.text->first(first.start), .after = after};
    if (leavesText(last, parts))
        return Seam{.passage = last.passage.id, .before = {}, .after = after};
    return std::nullopt;
}

/// Takes what is selected out of a block, except the passage that stays. Tells whether anything of it is
/// left.
bool cut(Block &block, const SelectedParts &parts, const PassageID &staying)
{
    if (parts.covers(block.id))
        return false;
    if (block.type != BlockType::sticky)
        return block.id == staying.blockID;
    block.todos->removeIf([&](const TodoItem &todo) {
        const PassageID entry{.blockID = block.id, .todoID = todo.id};
        return entry != staying && parts.of(entry);
    });
    return !block.todos->isEmpty();
}

void setText(PelkoDocument &document, const PassageID &passage, const QString &text)
{
    Block &block = document.blocks[BlockOperations::indexOf(document, passage.blockID)];
    if (passage.todoID)
        std::ranges::find(*block.todos, *passage.todoID, &TodoItem::id)->text = text;
    else if (block.type == BlockType::image)
        block.bannerTitle = text;
    else
        block.content = text;
}

bool isBannerTitle(const PelkoDocument &document, const PassageID &passage)
{
    return document.blocks.at(BlockOperations::indexOf(document, passage.blockID)).type == BlockType::image;
}

struct Removal {
    PelkoDocument document;
    Seam seam;
};

std::optional<Removal> removal(PelkoDocument document, const BlockSelection &selection)
{
    const SelectedParts parts(Passages(document), selection);
    if (parts.all().isEmpty())
        return std::nullopt;
    auto seam = seamOf(parts);
    const qsizetype firstRow = parts.all().first().passage.row;
    for (qsizetype row = parts.all().last().passage.row; row >= firstRow; --row) {
        if (!cut(document.blocks[row], parts, seam.value_or(Seam()).passage))
            document.blocks.removeAt(row);
    }
    if (!seam) {
        document.blocks.insert(firstRow, Block(BlockType::textSmall));
        seam.emplace().passage.blockID = document.blocks.at(firstRow).id;
    }
    if (parts.isCrossing() && isBannerTitle(document, seam->passage))
        seam->after = onOneLine(seam->after);
    setText(document, seam->passage, seam->before + seam->after);
    return Removal{.document = std::move(document), .seam = *std::move(seam)};
}

FocusTarget caretIn(const PassageID &passage, qsizetype offset)
{
    return {.blockID = passage.blockID, .todoID = passage.todoID, .caret = static_cast<int>(offset)};
}

std::optional<Edit> type(PelkoDocument document, const PassageID &passage, const QString &value, int caret)
{
    if (passage.todoID)
        return TodoOperations::setText(std::move(document), passage.blockID, *passage.todoID, value, caret);
    const qsizetype row = BlockOperations::indexOf(document, passage.blockID);
    if (isTextLike(document.blocks.at(row).type))
        return TypingRules::apply(std::move(document), passage.blockID, value, caret);
    setText(document, passage, value);
    return Edit{.document = std::move(document), .focus = std::nullopt};
}

/// Removes the selection and then makes a line at the seam, where its text can have several.
std::optional<Edit> makeLine(PelkoDocument document, const BlockSelection &selection,
                             decltype(LineOperations::split) operation)
{
    auto removed = SelectionOperations::remove(std::move(document), selection);
    if (!removed)
        return std::nullopt;
    const FocusTarget seam = removed->focus.value();
    auto edit = operation(removed->document, seam, {.start = seam.caret, .end = seam.caret});
    return edit ? edit : removed;
}

} // namespace

std::optional<Edit> SelectionOperations::remove(PelkoDocument document, const BlockSelection &selection)
{
    auto removed = removal(std::move(document), selection);
    if (!removed)
        return std::nullopt;
    const Seam &seam = removed->seam;
    return Edit{.document = std::move(removed->document), .focus = caretIn(seam.passage, seam.before.size())};
}

std::optional<Edit> SelectionOperations::replace(PelkoDocument document, const BlockSelection &selection,
                                                 const QString &text)
{
    auto removed = removal(document, selection);
    if (!removed)
        return std::nullopt;
    const Seam &seam = removed->seam;
    // Within one text, a paste is typing: its rules compare with the text as it was.
    if (!SelectedParts(Passages(document), selection).isCrossing())
        removed->document = std::move(document);
    const QString typed = isBannerTitle(removed->document, seam.passage) ? onOneLine(text) : text;
    const FocusTarget caret = caretIn(seam.passage, seam.before.size() + typed.size());
    auto edit =
        type(std::move(removed->document), seam.passage, seam.before + typed + seam.after, caret.caret);
    if (edit && !edit->focus)
        edit->focus = caret;
    return edit;
}

std::optional<Edit> SelectionOperations::replaceByPicture(PelkoDocument document,
                                                          const BlockSelection &selection,
                                                          const QByteArray &bytes)
{
    auto removed = remove(std::move(document), selection);
    if (!removed)
        return std::nullopt;
    auto edit = ImageOperations::insertImage(std::move(removed->document), removed->focus->blockID, bytes);
    if (edit)
        edit->focus = removed->focus;
    return edit;
}

std::optional<Edit> SelectionOperations::split(PelkoDocument document, const BlockSelection &selection)
{
    return makeLine(std::move(document), selection, LineOperations::split);
}

std::optional<Edit> SelectionOperations::breakLine(PelkoDocument document, const BlockSelection &selection)
{
    return makeLine(std::move(document), selection, LineOperations::breakLine);
}
