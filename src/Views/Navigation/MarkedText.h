#pragma once

#include "Controls/PictureItem.h"
#include "Navigation/MarkedLine.h"

#include <QColor>
#include <QFont>
#include <QtQml/qqml.h>

class QTextLayout;

/// One line of text whose marked parts are heavier, in a colour of their own, and stand on a ground. What
/// does not fit into the item gives way to "…". Every text begins at the same side, whatever its direction,
/// as the other lines of a list do.
class MarkedText : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(MarkedLine line READ line WRITE setLine NOTIFY lineChanged REQUIRED)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor markColor READ markColor WRITE setMarkColor NOTIFY markColorChanged)
    Q_PROPERTY(QColor markGround READ markGround WRITE setMarkGround NOTIFY markGroundChanged)
    /// Which side that is: the left one if not.
    Q_PROPERTY(bool startsRight READ startsRight WRITE setStartsRight NOTIFY startsRightChanged)
    QML_ELEMENT

public:
    explicit MarkedText(QQuickItem *parent = nullptr);

    MarkedLine line() const { return m_line; }
    QFont font() const { return m_font; }
    QColor color() const { return m_color; }
    QColor markColor() const { return m_markColor; }
    QColor markGround() const { return m_markGround; }
    bool startsRight() const { return m_startsRight; }

    void setLine(const MarkedLine &line);
    void setFont(const QFont &font);
    void setColor(const QColor &color);
    void setMarkColor(const QColor &color);
    void setMarkGround(const QColor &color);
    void setStartsRight(bool startsRight);

Q_SIGNALS:
    void lineChanged();
    void fontChanged();
    void colorChanged();
    void markColorChanged();
    void markGroundChanged();
    void startsRightChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    template <typename Value>
    void assign(Value &field, const Value &value, void (MarkedText::*changed)());
    void layOut(QTextLayout &layout, qreal width) const;
    void paintGrounds(QPainter &painter, const QTextLayout &layout, qreal height) const;

    MarkedLine m_line;
    QFont m_font;
    QColor m_color = Qt::white;
    QColor m_markColor = Qt::white;
    QColor m_markGround = Qt::transparent;
    bool m_startsRight = false;
};
