#include "SoftBlur.h"

#include <QColor>
#include <QPainter>
#include <QtMath>

#include <vector>

namespace
{

/// Replaces the values of one row or column by their running mean over `2 * reach + 1` values.
void boxBlurLine(uchar *line, qsizetype stride, int count, int reach, std::vector<uchar> &copy)
{
    for (int i = 0; i < count; ++i)
        copy[i] = line[i * stride];
    const int width = 2 * reach + 1;
    int sum = 0;
    for (int i = -reach; i < count; ++i) {
        if (i + reach < count)
            sum += copy[i + reach];
        if (i - reach - 1 >= 0)
            sum -= copy[i - reach - 1];
        if (i >= 0)
            line[i * stride] = uchar((sum + width / 2) / width);
    }
}

} // namespace

QImage softened(const QImage &shape, qreal radius, const QColor &color)
{
    // Three box blurs of half the radius have the deviation of that Gaussian and look like it.
    QImage alpha = shape.convertToFormat(QImage::Format_Alpha8);
    const int reach = qMax(1, qRound(radius / 2));
    std::vector<uchar> copy(qMax(alpha.width(), alpha.height()));
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < alpha.height(); ++y)
            boxBlurLine(alpha.scanLine(y), 1, alpha.width(), reach, copy);
        for (int x = 0; x < alpha.width(); ++x)
            boxBlurLine(alpha.bits() + x, alpha.bytesPerLine(), alpha.height(), reach, copy);
    }
    QImage result(shape.size(), QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.drawImage(0, 0, alpha);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(result.rect(), color);
    return result;
}
