#include "Models/Block.h"

#include <tuple>

bool Block::operator==(const Block &other) const
{
    const auto others =
        std::tie(other.id, other.type, other.content, other.todos, other.isFullWidth, other.bannerTitle);
    return std::tie(id, type, content, todos, isFullWidth, bannerTitle) == others &&
           isSamePicture(imageData, other.imageData);
}

bool isSamePicture(const std::optional<QByteArray> &one, const std::optional<QByteArray> &other)
{
    const bool isShared = one && other && one->constData() == other->constData();
    return (isShared && one->size() == other->size()) || one == other;
}
