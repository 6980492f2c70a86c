#include "Editor/ImageOperations.h"

#include "Editor/BlockOperations.h"
#include "Editor/TextChange.h"
#include "Models/LineBreaks.h"

std::optional<Edit> ImageOperations::setImageData(PelkoDocument document, const QUuid &blockID,
                                                  const QByteArray &bytes)
{
    const qsizetype index = BlockOperations::indexOf(document, blockID);
    if (index < 0)
        return std::nullopt;
    document.blocks[index].imageData = bytes;
    return Edit{.document = std::move(document)};
}

std::optional<Edit> ImageOperations::insertImage(PelkoDocument document, const QUuid &blockID,
                                                 const QByteArray &bytes)
{
    const qsizetype index = BlockOperations::indexOf(document, blockID);
    if (index < 0)
        return std::nullopt;
    Block picture(BlockType::image);
    picture.imageData = bytes;
    document.blocks.insert(index + 1, picture);
    return Edit{.document = std::move(document), .scrollTo = picture.id};
}

std::optional<Edit> ImageOperations::setBannerTitle(PelkoDocument document, const QUuid &blockID,
                                                    const QString &title, int caret)
{
    const qsizetype index = BlockOperations::indexOf(document, blockID);
    if (index < 0)
        return std::nullopt;
    Block &block = document.blocks[index];
    const QString before = block.bannerTitle.value_or(QString());
    TextChange change = TextChange::between(before, title, caret);
    change.inserted = onOneLine(change.inserted);
    block.bannerTitle = change.applied(before);
    return Edit{.document = std::move(document)};
}
