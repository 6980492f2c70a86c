#include "GradientText.h"

#include <QFontMetricsF>
#include <QPainter>

template <typename Field>
void GradientText::assign(Field &field, const Field &value, void (GradientText::*changed)())
{
    if (field == value)
        return;
    field = value;
    repaintPicture();
    Q_EMIT(this->*changed)();
}

void GradientText::setText(const QString &text)
{
    assign(m_text, text, &GradientText::textChanged);
}

void GradientText::setFont(const QFont &font)
{
    assign(m_font, font, &GradientText::fontChanged);
}

void GradientText::setTopColor(const QColor &color)
{
    assign(m_topColor, color, &GradientText::topColorChanged);
}

void GradientText::setFootColor(const QColor &color)
{
    assign(m_footColor, color, &GradientText::footColorChanged);
}

void GradientText::paintPicture(QPainter &painter, const QSizeF &size)
{
    const QFontMetricsF metrics(m_font);
    QLinearGradient shade(0, metrics.ascent() - metrics.capHeight(), 0, metrics.ascent());
    shade.setColorAt(0, m_topColor);
    shade.setColorAt(1, m_footColor);
    painter.setFont(m_font);
    painter.setPen(QPen(shade, 1));
    painter.drawText(QRectF({}, size), Qt::AlignHCenter | Qt::AlignTop, m_text);
}
