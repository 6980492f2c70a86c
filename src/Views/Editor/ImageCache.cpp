#include "ImageCache.h"

#include "Models/Block.h"
#include "PictureDecoder.h"

#include <algorithm>

namespace
{

constexpr int previewShrink = 4;

/// Rounding may make a picture one pixel smaller.
bool covers(const QSize &one, const QSize &other)
{
    return one.width() + 1 >= other.width() && one.height() + 1 >= other.height();
}

QImage preview(const QImage &image)
{
    const QSize size = (image.size() / previewShrink).expandedTo(QSize(1, 1));
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

ImageCache::ImageCache(QObject *parent) : QObject(parent)
{
    // One at a time: decoding a large photo takes much memory.
    m_decoder.setMaxThreadCount(1);
}

ImageCache::~ImageCache()
{
    m_decoder.clear();
    m_decoder.waitForDone();
}

QImage ImageCache::cachedImage(const QUuid &id, const QByteArray &data, const QSize &pixels)
{
    Entry &entry = entryFor(id, data);
    entry.lastAsked = ++m_asked;
    if (!entry.isDecoding && !covers(entry.decodedFor, pixels) && !covers(entry.image.size(), pixels))
        decode(id, entry, pixels);
    return entry.image;
}

QSize ImageCache::sizeOf(const QUuid &id, const QByteArray &data)
{
    return entryFor(id, data).size;
}

ImageCache::Entry &ImageCache::entryFor(const QUuid &id, const QByteArray &data)
{
    Entry &entry = m_entries[id];
    if (!isSamePicture(entry.data, data))
        entry = {.data = data, .size = PictureDecoder::sizeOf(data)};
    return entry;
}

void ImageCache::decode(const QUuid &id, Entry &entry, const QSize &pixels)
{
    entry.isDecoding = true;
    ++m_decodings;
    m_decoder.start([this, id, data = entry.data, pixels] {
        const QImage image = PictureDecoder::decode(data, pixels);
        QMetaObject::invokeMethod(this, [this, id, data, pixels, image] { store(id, data, pixels, image); });
    });
}

void ImageCache::store(const QUuid &id, const QByteArray &data, const QSize &pixels, const QImage &image)
{
    Entry &entry = m_entries[id];
    if (!isSamePicture(entry.data, data))
        return; // the block has another picture now
    entry.isDecoding = false;
    if (image.isNull())
        return;
    entry.image = image;
    entry.decodedFor = pixels;
    if (entry.size.isEmpty())
        entry.size = image.size();
    keepToBudget();
    Q_EMIT arrived(id);
}

void ImageCache::keepToBudget()
{
    const auto isWhole = [](const Entry &entry) { return !entry.decodedFor.isEmpty(); };
    qsizetype taken = 0;
    for (const Entry &entry : std::as_const(m_entries))
        taken += entry.image.sizeInBytes();
    while (taken > m_budget) {
        Entry *oldest = nullptr;
        for (Entry &entry : m_entries) {
            if (isWhole(entry) && (!oldest || entry.lastAsked < oldest->lastAsked))
                oldest = &entry;
        }
        if (!oldest || oldest->lastAsked == m_asked)
            return;
        taken -= oldest->image.sizeInBytes();
        oldest->image = preview(oldest->image);
        oldest->decodedFor = {};
        taken += oldest->image.sizeInBytes();
    }
}
