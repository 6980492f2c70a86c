#pragma once

#include "Controls/PictureItem.h"
#include "Navigation/HighlightedLine.h"

#include <QColor>
#include <QFont>
#include <QtQml/qqml.h>

class QTextLayout;

/// One line of text. Highlighted ranges have a heavier weight, another colour and a background. Text that
/// does not fit is elided with "…". Text of either direction is aligned to the same edge.
class HighlightedText : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(HighlightedLine line READ line WRITE setLine NOTIFY lineChanged REQUIRED)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor NOTIFY highlightColorChanged)
    Q_PROPERTY(QColor highlightBackground READ highlightBackground WRITE setHighlightBackground NOTIFY
                   highlightBackgroundChanged)
    /// Whether the text is aligned to the right edge instead of the left.
    Q_PROPERTY(bool startsRight READ startsRight WRITE setStartsRight NOTIFY startsRightChanged)
    QML_ELEMENT

public:
    explicit HighlightedText(QQuickItem *parent = nullptr);

    HighlightedLine line() const { return m_line; }
    QFont font() const { return m_font; }
    QColor color() const { return m_color; }
    QColor highlightColor() const { return m_highlightColor; }
    QColor highlightBackground() const { return m_highlightBackground; }
    bool startsRight() const { return m_startsRight; }

    void setLine(const HighlightedLine &line);
    void setFont(const QFont &font);
    void setColor(const QColor &color);
    void setHighlightColor(const QColor &color);
    void setHighlightBackground(const QColor &color);
    void setStartsRight(bool startsRight);

Q_SIGNALS:
    void lineChanged();
    void fontChanged();
    void colorChanged();
    void highlightColorChanged();
    void highlightBackgroundChanged();
    void startsRightChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    template <typename Value>
    void assign(Value &field, const Value &value, void (HighlightedText::*changed)());
    void layOut(QTextLayout &layout, qreal width) const;
    void paintGrounds(QPainter &painter, const QTextLayout &layout, qreal height) const;

    HighlightedLine m_line;
    QFont m_font;
    QColor m_color = Qt::white;
    QColor m_highlightColor = Qt::white;
    QColor m_highlightBackground = Qt::transparent;
    bool m_startsRight = false;
};
