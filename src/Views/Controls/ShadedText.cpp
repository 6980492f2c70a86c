#include "ShadedText.h"

#include <QFontMetricsF>
#include <QPainter>

template <typename Field>
void ShadedText::assign(Field &field, const Field &value, void (ShadedText::*changed)())
{
    if (field == value)
        return;
    field = value;
    repaintPicture();
    Q_EMIT(this->*changed)();
}

void ShadedText::setText(const QString &text)
{
    assign(m_text, text, &ShadedText::textChanged);
}

void ShadedText::setFont(const QFont &font)
{
    assign(m_font, font, &ShadedText::fontChanged);
}

void ShadedText::setTopColor(const QColor &color)
{
    assign(m_topColor, color, &ShadedText::topColorChanged);
}

void ShadedText::setFootColor(const QColor &color)
{
    assign(m_footColor, color, &ShadedText::footColorChanged);
}

void ShadedText::paintPicture(QPainter &painter, const QSizeF &size)
{
    const QFontMetricsF metrics(m_font);
    QLinearGradient shade(0, metrics.ascent() - metrics.capHeight(), 0, metrics.ascent());
    shade.setColorAt(0, m_topColor);
    shade.setColorAt(1, m_footColor);
    painter.setFont(m_font);
    painter.setPen(QPen(shade, 1));
    painter.drawText(QRectF({}, size), Qt::AlignHCenter | Qt::AlignTop, m_text);
}
