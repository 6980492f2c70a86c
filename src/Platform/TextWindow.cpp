#include "Platform/TextWindow.h"

#include <QKeyEvent>
#include <QPainter>

namespace
{
constexpr QSize usualSize(560, 220);
constexpr int margin = 32;
constexpr QColor windowColour(0x14, 0x10, 0x0e);
constexpr QColor textColour(0xf4, 0xec, 0xe4);
} // namespace

TextWindow::TextWindow(const QString &title, QString text) : m_text(std::move(text))
{
    setTitle(title);
    resize(usualSize);
}

void TextWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect area(QPoint(), size());
    painter.fillRect(area, windowColour);
    painter.setPen(textColour);
    painter.drawText(area.marginsRemoved({margin, margin, margin, margin}),
                     Qt::AlignCenter | Qt::TextWordWrap, m_text);
}

void TextWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        close();
}
