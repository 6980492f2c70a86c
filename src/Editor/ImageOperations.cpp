#include "Editor/ImageOperations.h"

#include "Editor/BlockOperations.h"

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
                                                    QString title)
{
    const qsizetype index = BlockOperations::indexOf(document, blockID);
    if (index < 0)
        return std::nullopt;
    for (const char16_t lineBreak : {u'\n', u'\r', u'\x2028', u'\x2029'})
        title.replace(QChar(lineBreak), u' ');
    document.blocks[index].bannerTitle = title;
    return Edit{.document = std::move(document)};
}
