#include "Editor/TextOperations.h"

#include "Editor/BlockOperations.h"
#include "Editor/ImageOperations.h"
#include "Editor/TodoOperations.h"
#include "Editor/TypingRules.h"

std::optional<Edit> TextOperations::typed(PelkoDocument document, const TextAddress &address,
                                          const QString &value, int caret)
{
    if (address.partID)
        return TodoOperations::setText(std::move(document), address, value, caret);
    const qsizetype row = BlockOperations::indexOf(document, address.blockID);
    if (row < 0)
        return std::nullopt;
    if (document.blocks.at(row).type == BlockType::image)
        return ImageOperations::setBannerTitle(std::move(document), address.blockID, value, caret);
    return TypingRules::apply(std::move(document), address.blockID, value, caret);
}
