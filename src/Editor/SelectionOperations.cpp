#include "Editor/SelectionOperations.h"

#include "Editor/BlockOperations.h"
#include "Editor/ImageOperations.h"
#include "Editor/LineOperations.h"
#include "Editor/TextOperations.h"
#include "Models/LineBreaks.h"

#include <algorithm>

namespace
{

/// The passage that remains after the selection was removed, and its text on either side.
struct Seam {
    TextAddress passage = {};
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

/// Removes the selected parts from a block, except the remaining passage. Returns whether any part of the
/// block is left.
bool cut(Block &block, const SelectedParts &parts, const TextAddress &staying)
{
    if (parts.covers(block.id))
        return false;
    if (block.type != BlockType::sticky)
        return block.id == staying.blockID;
    block.todos->removeIf([&](const TodoItem &todo) {
        const TextAddress entry{.blockID = block.id, .partID = todo.id};
        return entry != staying && parts.of(entry);
    });
    return !block.todos->isEmpty();
}

void setText(PelkoDocument &document, const TextAddress &passage, const QString &text)
{
    Block &block = document.blocks[BlockOperations::indexOf(document, passage.blockID)];
    if (passage.partID)
        std::ranges::find(*block.todos, *passage.partID, &TodoItem::id)->text = text;
    else if (block.type == BlockType::image)
        block.bannerTitle = text;
    else
        block.content = text;
}

bool isBannerTitle(const PelkoDocument &document, const TextAddress &passage)
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

FocusTarget caretIn(const TextAddress &passage, qsizetype offset)
{
    return {.address = passage, .caret = static_cast<int>(offset)};
}

/// Removes the selection and breaks the remaining text at its place, if it can have several lines.
std::optional<Edit> makeLine(PelkoDocument document, const BlockSelection &selection,
                             decltype(LineOperations::split) operation)
{
    auto removed = SelectionOperations::remove(std::move(document), selection);
    if (!removed)
        return std::nullopt;
    const FocusTarget seam = removed->focus.value();
    auto edit = operation(removed->document, seam.address, {.start = seam.caret, .end = seam.caret});
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
    // Within one text, pasting is typing: the typing rules compare with the text before.
    if (!SelectedParts(Passages(document), selection).isCrossing())
        removed->document = std::move(document);
    const QString typed = isBannerTitle(removed->document, seam.passage) ? onOneLine(text) : text;
    const FocusTarget caret = caretIn(seam.passage, seam.before.size() + typed.size());
    auto edit = TextOperations::typed(std::move(removed->document), seam.passage,
                                      seam.before + typed + seam.after, caret.caret);
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
    auto edit =
        ImageOperations::insertImage(std::move(removed->document), removed->focus->address.blockID, bytes);
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
