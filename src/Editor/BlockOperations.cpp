#include "Editor/BlockOperations.h"

#include <algorithm>

namespace
{

bool isBlankLine(const QString &text)
{
    return std::ranges::all_of(text, [](QChar c) { return c == u' ' || c == u'\t'; });
}

void showHeadingAgain(QList<Block> &blocks)
{
    if (blocks.first().type != BlockType::textLarge)
        blocks.prepend(Block(BlockType::textLarge));
}

void putBannerFirst(QList<Block> &blocks, const QUuid &bannerID)
{
    const Block &first = blocks.first();
    if (first.id != bannerID && first.type == BlockType::textLarge && isBlankLine(first.content))
        blocks.removeFirst();
    const auto banner = std::ranges::find(blocks, bannerID, &Block::id);
    std::rotate(blocks.begin(), banner, banner + 1);
}

template <typename Predicate>
std::optional<QUuid> firstID(const PelkoDocument &document, Predicate matches)
{
    const auto found = std::ranges::find_if(document.blocks, matches);
    return found == document.blocks.end() ? std::nullopt : std::optional(found->id);
}

} // namespace

Block BlockOperations::newBlock(BlockType type)
{
    Block block(type);
    if (type == BlockType::sticky)
        block.todos = QList{TodoItem{}};
    return block;
}

qsizetype BlockOperations::indexOf(const PelkoDocument &document, const QUuid &blockID)
{
    const auto found = std::ranges::find(document.blocks, blockID, &Block::id);
    return found == document.blocks.end() ? -1 : found - document.blocks.begin();
}

bool BlockOperations::firstBlockIsBanner(const PelkoDocument &document)
{
    if (document.blocks.isEmpty())
        return false;
    const Block &first = document.blocks.first();
    return first.type == BlockType::image && first.isFullWidth.value_or(false) && first.imageData.has_value();
}

bool BlockOperations::canDelete(const PelkoDocument &document, qsizetype index)
{
    const bool isLeadingHeading = index == 0 && document.blocks.at(index).type == BlockType::textLarge;
    return !isLeadingHeading && document.blocks.size() > 1;
}

bool BlockOperations::offersDelete(const PelkoDocument &document)
{
    return document.blocks.size() > 1;
}

std::optional<QUuid> BlockOperations::firstEmptyTextBlock(const PelkoDocument &document)
{
    return firstID(document,
                   [](const Block &block) { return isTextLike(block.type) && block.content.isEmpty(); });
}

std::optional<QUuid> BlockOperations::firstTextBlock(const PelkoDocument &document)
{
    return firstID(document, [](const Block &block) { return isTextLike(block.type); });
}

Edit BlockOperations::addBlock(PelkoDocument document, BlockType type)
{
    document.blocks.append(newBlock(type));
    const QUuid added = document.blocks.last().id;
    Edit edit{.document = std::move(document), .scrollTo = added};
    if (isTextLike(type))
        edit.focus = FocusTarget{.address = {.blockID = added}};
    return edit;
}

std::optional<Edit> BlockOperations::writeBelow(PelkoDocument document)
{
    if (document.blocks.isEmpty() || !isTextLike(document.blocks.last().type))
        return addBlock(std::move(document), BlockType::textSmall);
    const FocusTarget end{.address = {.blockID = document.blocks.last().id}};
    return Edit{.document = std::move(document), .focus = end};
}

std::optional<Edit> BlockOperations::deleteBlock(PelkoDocument document, const QUuid &blockID)
{
    if (document.blocks.size() < 2)
        return std::nullopt;
    if (document.blocks.removeIf([&](const Block &block) { return block.id == blockID; }) == 0)
        return std::nullopt;
    return Edit{std::move(document)};
}

std::optional<Edit> BlockOperations::moveBlock(PelkoDocument document, const QUuid &blockID, int rows)
{
    const qsizetype from = indexOf(document, blockID);
    if (from < 0)
        return std::nullopt;
    const qsizetype to = std::clamp<qsizetype>(from + rows, 0, document.blocks.size() - 1);
    if (from == to)
        return std::nullopt;
    document.blocks.move(from, to);
    return Edit{std::move(document), std::nullopt};
}

std::optional<Edit> BlockOperations::toggleFullWidth(PelkoDocument document, const QUuid &blockID)
{
    const qsizetype index = indexOf(document, blockID);
    if (index < 0)
        return std::nullopt;
    Block &block = document.blocks[index];
    const bool wasFullWidth = block.isFullWidth.value_or(false);
    block.isFullWidth = !wasFullWidth;
    if (wasFullWidth) {
        showHeadingAgain(document.blocks);
        return Edit{std::move(document)};
    }
    putBannerFirst(document.blocks, blockID);
    return Edit{std::move(document), FocusTarget{.address = {.blockID = blockID}}};
}
