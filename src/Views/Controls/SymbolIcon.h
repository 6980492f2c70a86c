#pragma once

#include "PictureItem.h"

#include <QColor>
#include <QtQml/qqml.h>

/// Draws a symbol of the program, by name, in one colour and at the resolution of the screen. It fills the
/// largest square in the centre of the item. Nothing is drawn for an unknown name.
class SymbolIcon : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    QML_ELEMENT

public:
    explicit SymbolIcon(QQuickItem *parent = nullptr);

    QString name() const { return m_name; }
    QColor color() const { return m_color; }
    /// The edge of the square in device-independent pixels; sets the implicit size.
    qreal size() const { return implicitWidth(); }

    void setName(const QString &name);
    void setColor(const QColor &color);
    void setSize(qreal size);

Q_SIGNALS:
    void nameChanged();
    void colorChanged();
    void sizeChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    QString m_name;
    QColor m_color = Qt::white;
};
