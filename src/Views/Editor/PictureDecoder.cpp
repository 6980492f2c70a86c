#include "PictureDecoder.h"

#include "DrawingInspector.h"

#include <QBuffer>
#include <QImageReader>

namespace
{

// Photo formats give their size within this length. Reading no further is fast for any file.
constexpr qsizetype headerLength = 256 * 1024;

// Some decoders need memory for the whole picture to make a small one.
constexpr qint64 mostPixels = 128'000'000;
constexpr int mostMegabytes = 256;

bool isDrawing(const QImageReader &reader)
{
    return reader.format().startsWith("svg");
}

bool isUpright(const QImageReader &reader)
{
    return !reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

QSize upright(const QImageReader &reader)
{
    return isUpright(reader) ? reader.size() : reader.size().transposed();
}

bool isReasonable(const QImageReader &reader, const QByteArray &bytes)
{
    if (isDrawing(reader))
        return DrawingInspector::isHarmless(bytes);
    const QSize size = reader.size();
    return qint64(size.width()) * size.height() <= mostPixels;
}

/// The reader scales before it rotates the picture.
QSize scaledSize(const QImageReader &reader, const QSize &wanted)
{
    const QSize full = reader.size();
    if (full.isEmpty() || wanted.isEmpty())
        return {};
    const QSize scaled =
        full.scaled(isUpright(reader) ? wanted : wanted.transposed(), Qt::KeepAspectRatioByExpanding);
    const bool isLarger = scaled.width() >= full.width() || scaled.height() >= full.height();
    return isLarger && !isDrawing(reader) ? QSize() : scaled;
}

} // namespace

QSize PictureDecoder::sizeOf(const QByteArray &bytes)
{
    QByteArray header = QByteArray::fromRawData(bytes.constData(), qMin(bytes.size(), headerLength));
    QBuffer buffer(&header);
    const QImageReader reader(&buffer);
    return isDrawing(reader) ? QSize() : upright(reader);
}

QImage PictureDecoder::decode(const QByteArray &bytes, const QSize &wanted)
{
    QImageReader::setAllocationLimit(mostMegabytes);
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    if (!isReasonable(reader, bytes))
        return {};
    reader.setScaledSize(scaledSize(reader, wanted));
    return reader.read();
}
