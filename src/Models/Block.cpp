#include "Models/Block.h"

#include <cstring>

namespace
{

/// QUuid's comparison goes byte by byte; a page of thousands of blocks is compared after every key.
bool isSameID(const QUuid &one, const QUuid &other)
{
    static_assert(std::has_unique_object_representations_v<QUuid>);
    return std::memcmp(&one, &other, sizeof(QUuid)) == 0;
}

/// Versions of a page share unchanged texts, so comparing addresses decides most cases.
bool isSameText(const QString &one, const QString &other)
{
    return (one.constData() == other.constData() && one.size() == other.size()) || one == other;
}

} // namespace

// QChar::isSpace is Unicode's White_Space: every separator, tab to carriage return, and U+0085.
qint64 Block::wordCount() const
{
    qint64 words = 0;
    bool inWord = false;
    for (const QChar character : content) {
        const bool space = character.isSpace();
        words += !space && !inWord;
        inWord = !space;
    }
    return words;
}

bool Block::operator==(const Block &other) const
{
    return isSameID(id, other.id) && type == other.type && isSameText(content, other.content) &&
           isFullWidth == other.isFullWidth && todos == other.todos && bannerTitle == other.bannerTitle &&
           isSamePicture(imageData, other.imageData);
}

bool isSamePicture(const std::optional<QByteArray> &one, const std::optional<QByteArray> &other)
{
    const bool isShared = one && other && one->constData() == other->constData();
    return (isShared && one->size() == other->size()) || one == other;
}
