#include "Editor/TypingRules.h"

#include "Editor/BlockOperations.h"

#include <algorithm>
#include <array>

namespace
{

struct Shortcut {
    QStringView typed;
    BlockType becomes;
};

constexpr std::array shortcuts{
    Shortcut{u"# ", BlockType::textLarge}, Shortcut{u"> ", BlockType::quote},
    Shortcut{u"```", BlockType::code},     Shortcut{u"``` ", BlockType::code},
    Shortcut{u"---", BlockType::divider},  Shortcut{u"--- ", BlockType::divider},
    Shortcut{u"[] ", BlockType::sticky},   Shortcut{u"[ ] ", BlockType::sticky},
};

std::optional<BlockType> shortcutFor(const Block &block, const QString &value)
{
    if (block.type != BlockType::textSmall)
        return std::nullopt;
    const auto found = std::ranges::find(shortcuts, QStringView(value), &Shortcut::typed);
    return found == shortcuts.end() ? std::nullopt : std::optional(found->becomes);
}

Edit convert(PelkoDocument document, qsizetype index, BlockType type, const QString &value)
{
    document.blocks[index].content = value;
    const PelkoDocument asTyped = document;
    Block &block = document.blocks[index];
    block.type = type;
    block.content.clear();
    FocusTarget focus{.address = {.blockID = block.id}};
    if (type == BlockType::sticky) {
        block.todos = BlockOperations::newBlock(type).todos;
        focus.address.partID = block.todos->first().id;
    } else if (type == BlockType::divider) {
        document.blocks.insert(index + 1, Block(BlockType::textSmall));
        focus.address.blockID = document.blocks.at(index + 1).id;
    }
    return {.document = std::move(document), .focus = focus, .asTyped = asTyped};
}

Edit split(PelkoDocument document, qsizetype index, const QString &value, int caret)
{
    const qsizetype lineFeed = value.indexOf(u'\n');
    document.blocks[index].content = value.first(lineFeed);
    Block rest(BlockType::textSmall, value.sliced(lineFeed + 1));
    const int restLength = static_cast<int>(rest.content.size());
    const FocusTarget focus{.address = {.blockID = rest.id},
                            .caret = std::clamp(caret - static_cast<int>(lineFeed) - 1, 0, restLength)};
    document.blocks.insert(index + 1, std::move(rest));
    return {std::move(document), focus};
}

bool deletesEmptyBlock(const PelkoDocument &document, qsizetype index, const QString &value)
{
    return value.isEmpty() && document.blocks.at(index).content.isEmpty() && document.blocks.size() >= 2 &&
           index > 0 && isTextLike(document.blocks.at(index - 1).type);
}

Edit removeEmptyBlock(PelkoDocument document, qsizetype index)
{
    document.blocks.removeAt(index);
    const FocusTarget focus{.address = {.blockID = document.blocks.at(index - 1).id}};
    return {std::move(document), focus};
}

} // namespace

std::optional<Edit> TypingRules::apply(PelkoDocument document, const QUuid &blockID, const QString &value,
                                       int caret)
{
    const qsizetype index = BlockOperations::indexOf(document, blockID);
    if (index < 0)
        return std::nullopt;
    const Block &block = document.blocks.at(index);
    if (const auto type = shortcutFor(block, value))
        return convert(std::move(document), index, *type, value);
    if (value.contains(u'\n') && !block.content.contains(u'\n'))
        return split(std::move(document), index, value, caret);
    if (deletesEmptyBlock(document, index, value))
        return removeEmptyBlock(std::move(document), index);
    document.blocks[index].content = value;
    return Edit{std::move(document)};
}
