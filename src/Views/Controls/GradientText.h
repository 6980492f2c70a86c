#pragma once

#include "PictureItem.h"

#include <QColor>
#include <QFont>
#include <QtQml/qqml.h>

/// A short text with a vertical colour gradient from the cap height to the baseline. It is centred from
/// left to right and starts at the top of the item, so that it has the baseline of plain text in that font.
class GradientText : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor topColor READ topColor WRITE setTopColor NOTIFY topColorChanged)
    Q_PROPERTY(QColor footColor READ footColor WRITE setFootColor NOTIFY footColorChanged)
    QML_ELEMENT

public:
    using PictureItem::PictureItem;

    QString text() const { return m_text; }
    QFont font() const { return m_font; }
    QColor topColor() const { return m_topColor; }
    QColor footColor() const { return m_footColor; }

    void setText(const QString &text);
    void setFont(const QFont &font);
    void setTopColor(const QColor &color);
    void setFootColor(const QColor &color);

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void topColorChanged();
    void footColorChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    template <typename Field>
    void assign(Field &field, const Field &value, void (GradientText::*changed)());

    QString m_text;
    QFont m_font;
    QColor m_topColor;
    QColor m_footColor;
};
