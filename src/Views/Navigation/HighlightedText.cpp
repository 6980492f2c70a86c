#include "HighlightedText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace
{
constexpr qreal groundMargin = 1.5;
constexpr qreal groundRadius = 3;

/// Lays out the text as one line of at most this width and returns the natural width of the text.
qreal layInOneLine(QTextLayout &layout, qreal width)
{
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(width);
    layout.endLayout();
    return line.isValid() ? line.naturalTextWidth() : 0;
}

} // namespace

HighlightedText::HighlightedText(QQuickItem *parent) : PictureItem(parent) {}

template <typename Value>
void HighlightedText::assign(Value &field, const Value &value, void (HighlightedText::*changed)())
{
    if (field == value)
        return;
    field = value;
    repaintPicture();
    Q_EMIT(this->*changed)();
}

void HighlightedText::setLine(const HighlightedLine &line)
{
    assign(m_line, line, &HighlightedText::lineChanged);
}

void HighlightedText::setFont(const QFont &font)
{
    assign(m_font, font, &HighlightedText::fontChanged);
    setImplicitHeight(std::ceil(QFontMetricsF(font).height()));
}

void HighlightedText::setColor(const QColor &color)
{
    assign(m_color, color, &HighlightedText::colorChanged);
}

void HighlightedText::setHighlightColor(const QColor &color)
{
    assign(m_highlightColor, color, &HighlightedText::highlightColorChanged);
}

void HighlightedText::setHighlightBackground(const QColor &color)
{
    assign(m_highlightBackground, color, &HighlightedText::highlightBackgroundChanged);
}

void HighlightedText::setStartsRight(bool startsRight)
{
    assign(m_startsRight, startsRight, &HighlightedText::startsRightChanged);
}

/// Lays out the text, elided to the width.
void HighlightedText::layOut(QTextLayout &layout, qreal width) const
{
    QList<QTextLayout::FormatRange> formats;
    for (const HighlightRange &mark : m_line.marks) {
        QTextCharFormat format;
        format.setFontWeight(QFont::DemiBold);
        format.setForeground(m_highlightColor);
        formats.append({static_cast<int>(mark.start), static_cast<int>(mark.length), format});
    }
    layout.setFont(m_font);
    layout.setFormats(formats);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setAlignment((m_startsRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute);
    layout.setTextOption(option);
    if (layInOneLine(layout, width) <= width)
        return;
    option.setWrapMode(QTextOption::WrapAnywhere);
    layout.setTextOption(option);
    layInOneLine(layout, width - QFontMetricsF(m_font).horizontalAdvance(u'…'));
    const QString fitting = m_line.text.left(layout.lineAt(0).textLength()).trimmed();
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setText(fitting + u'…');
    layout.setFormats(formats);
    layInOneLine(layout, width);
}

void HighlightedText::paintGrounds(QPainter &painter, const QTextLayout &layout, qreal height) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_highlightBackground);
    const QTextLine line = layout.lineAt(0);
    for (const HighlightRange &mark : m_line.marks) {
        const int end = static_cast<int>(mark.start + mark.length);
        if (end > layout.text().size())
            break;
        const qreal one = line.cursorToX(static_cast<int>(mark.start));
        const qreal other = line.cursorToX(end);
        const QRectF ground(std::min(one, other) - groundMargin, 0, std::abs(other - one) + 2 * groundMargin,
                            height);
        painter.drawRoundedRect(ground, groundRadius, groundRadius);
    }
}

void HighlightedText::paintPicture(QPainter &painter, const QSizeF &size)
{
    if (m_line.text.isEmpty())
        return;
    QTextLayout layout(m_line.text);
    layOut(layout, size.width());
    paintGrounds(painter, layout, size.height());
    painter.setPen(m_color);
    layout.draw(&painter, {0, (size.height() - layout.lineAt(0).height()) / 2});
}
