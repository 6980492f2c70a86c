#include "Export/PictureSuffix.h"

using namespace Qt::StringLiterals;

namespace
{
struct Mark {
    qsizetype offset;
    QByteArrayView bytes;
};

bool carries(QByteArrayView picture, const Mark &mark)
{
    const qsizetype end = mark.offset + mark.bytes.size();
    return picture.size() >= end && picture.sliced(mark.offset, mark.bytes.size()) == mark.bytes;
}

struct Format {
    Mark first;
    Mark second;
    QLatin1StringView suffix;
};

QByteArrayView bytes(QLatin1StringView text)
{
    return {text.data(), text.size()};
}

constexpr Mark none{0, {}};

// If two formats have the same signature, the more specific one is first.
const Format formats[] = {
    {{0, bytes("\x89PNG\r\n\x1a\n"_L1)}, none, "png"_L1},
    {{0, bytes("\xff\xd8\xff"_L1)}, none, "jpg"_L1},
    {{0, bytes("GIF8"_L1)}, none, "gif"_L1},
    {{0, bytes("RIFF"_L1)}, {8, bytes("WEBP"_L1)}, "webp"_L1},
    {{4, bytes("ftypavi"_L1)}, none, "avif"_L1},
    {{4, bytes("ftyphe"_L1)}, none, "heic"_L1},
    {{4, bytes("ftypmif1"_L1)}, none, "heif"_L1},
    {{0, bytes("II*\0"_L1)}, none, "tif"_L1},
    {{0, bytes("MM\0*"_L1)}, none, "tif"_L1},
    {{0, bytes("BM"_L1)}, none, "bmp"_L1},
    {{0, bytes("\0\0\1\0"_L1)}, none, "ico"_L1},
    {{0, bytes("\xff\x0a"_L1)}, none, "jxl"_L1},
    {{0, bytes("\0\0\0\x0cJXL "_L1)}, none, "jxl"_L1},
    {{0, bytes("\0\0\0\x0cjP  "_L1)}, none, "jp2"_L1},
    {{0, bytes("qoif"_L1)}, none, "qoi"_L1},
};

/// Returns whether the picture is SVG: text whose root element may follow a declaration and comments.
bool isDrawing(QByteArrayView picture)
{
    const QByteArrayView start = picture.first(qMin<qsizetype>(picture.size(), 1024)).trimmed();
    const bool isMarkup = start.startsWith('<') || start.startsWith("\xef\xbb\xbf<");
    return isMarkup && start.contains("<svg");
}
} // namespace

QString pictureSuffix(QByteArrayView picture)
{
    for (const Format &format : formats) {
        if (carries(picture, format.first) && carries(picture, format.second))
            return format.suffix;
    }
    return isDrawing(picture) ? u"svg"_s : u"bin"_s;
}
